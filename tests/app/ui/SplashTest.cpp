// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmLogo.h"
#include "widgets/QtEventLoop.h"

#include "fakes/Waiting.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// Says when a window goes.
class EndOf final : public QObject {
  public:
    EndOf(QWidget &window, const QElapsedTimer &clock)
        : Clock_(clock) {
        window.installEventFilter(this);
    }
    qint64 Milliseconds = -1;

  private:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Hide)
            Milliseconds = Clock_.elapsed();
        return false;
    }

    const QElapsedTimer &Clock_;
};

TEST(SplashWindow, HandsOverAfterOneIntervalAndGoesAfterTheNext) {
    QtEventLoop events;
    QElapsedTimer clock;
    clock.start();
    qint64 shownAfter = -1;
    frmLogo splash([&] { shownAfter = clock.elapsed(); }, events);
    const EndOf end(splash, clock);
    splash.show();
    ASSERT_TRUE(WaitFor([&] { return end.Milliseconds >= 0; }));
    EXPECT_GE(shownAfter, SplashMilliseconds);
    EXPECT_GE(end.Milliseconds, 2 * SplashMilliseconds);
    EXPECT_GT(end.Milliseconds, shownAfter);
}

TEST(SplashWindow, StandsInTheMiddleOfTheScreenWithPictureAndName) {
    QtEventLoop events;
    frmLogo splash([] {}, events);
    EXPECT_EQ(splash.geometry().center(), splash.screen()->geometry().center());
    EXPECT_FALSE(splash.findChild<QLabel *>(QStringLiteral("Picture1"))->pixmap().isNull());
    EXPECT_EQ(splash.findChild<QLabel *>(QStringLiteral("Label1"))->text(),
              QStringLiteral("Quillbox"));
}

} // namespace
} // namespace Quillbox
