// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmLogo.h"

#include "tools/CreditLine.h"

#include <QIcon>
#include <QLabel>
#include <QScreen>

namespace Quillbox {
namespace {

constexpr QSize PictureSize(420, 260);
constexpr QRect TitleArea(24, 182, 372, 40);
constexpr QRect CreditArea(24, 222, 372, 26);

QLabel *AddLabel(QWidget *parent, const QString &name, const QRect &area) {
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setGeometry(area);
    return label;
}

QLabel *AddText(QWidget *parent, const QString &name, const QRect &area, const QString &text,
                const QFont &font) {
    QLabel *label = AddLabel(parent, name, area);
    label->setText(text);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color: #263238"));
    return label;
}

} // namespace

frmLogo::frmLogo(std::function<void()> showMainWindow, EventLoop &eventLoop)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , Splash_{std::move(showMainWindow),
              [this] {
                  show();
                  raise();
              },
              [this] { close(); }, eventLoop} {
    setObjectName(QStringLiteral("frmLogo"));
    setWindowTitle(CreditLine);
    setFixedSize(PictureSize);
    move(screen()->geometry().center() - rect().center());
    AddLabel(this, QStringLiteral("Picture1"), QRect({0, 0}, PictureSize))
        ->setPixmap(QIcon(QStringLiteral(":/icons/splash.svg")).pixmap(PictureSize));
    AddText(this, QStringLiteral("Label1"), TitleArea, QStringLiteral("Quillbox"),
            QFont(QStringLiteral("Tahoma"), 22, QFont::Bold));
    AddText(this, QStringLiteral("lblCredit"), CreditArea, CreditLine, font());
    tmrTimer.setObjectName(QStringLiteral("tmrTimer"));
    tmrTimer.setTimerType(Qt::PreciseTimer); // the others may tick up to a twentieth early
    tmrTimer.setInterval(SplashMilliseconds);
    connect(&tmrTimer, &QTimer::timeout, this, [this] {
        Splash_.tmrTimer_Timer();
        if (!isVisible())
            tmrTimer.stop();
    });
    tmrTimer.start();
}

} // namespace Quillbox
