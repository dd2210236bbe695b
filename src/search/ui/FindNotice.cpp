// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindNotice.h"

#include <QLabel>
#include <QTimer>
#include <QToolTip>

#include <chrono>

namespace Quillbox {

namespace {

constexpr std::chrono::seconds ShownFor(4);
constexpr int Distance = 16;
constexpr int Padding = 8;

QString NoticeName() { return QStringLiteral("lblAvisoBuscar"); }

} // namespace

void ShowFindNotice(QWidget &view, const QString &text) {
    delete view.findChild<QLabel *>(NoticeName());
    if (text.isEmpty())
        return;
    auto *notice = new QLabel(text, &view);
    notice->setObjectName(NoticeName());
    notice->setTextFormat(Qt::PlainText);
    notice->setPalette(QToolTip::palette());
    notice->setForegroundRole(QPalette::ToolTipText);
    notice->setBackgroundRole(QPalette::ToolTipBase);
    notice->setAutoFillBackground(true);
    notice->setFrameShape(QFrame::Box);
    notice->setMargin(Padding);
    notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    notice->resize(notice->sizeHint().boundedTo(view.size()));
    notice->move((view.width() - notice->width()) / 2,
                 std::max(view.height() - notice->height() - Distance, 0));
    notice->show();
    QTimer::singleShot(ShownFor, notice, &QObject::deleteLater);
}

} // namespace Quillbox
