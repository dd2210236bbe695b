// SPDX-License-Identifier: GPL-3.0-or-later
#include "RealProgram.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QEvent>

#include <cstdio>

namespace Quillbox::Bench {

namespace {

/// Sees the first paint of a widget.
class FirstPaint final : public QObject {
  public:
    explicit FirstPaint(QWidget &widget) { widget.installEventFilter(this); }

    bool Seen = false;

  private:
    bool eventFilter(QObject *, QEvent *event) override {
        Seen = Seen || event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

/// What the splash's first tick does, until the main window shows its help page.
void MeasureStartUp() {
    QElapsedTimer clock;
    clock.start();
    RealProgram real({}, QStringLiteral(QUILLBOX_PROGRAM_FOLDER));
    auto *page = real.Whole.Main().findChild<QAbstractScrollArea *>(QStringLiteral("htmlAyuda"));
    const FirstPaint paint(*page->viewport());
    while (!paint.Seen)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    std::printf("%.1f\n", static_cast<double>(clock.nsecsElapsed()) / 1e6);
}

} // namespace Quillbox::Bench
