// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmLogo.h"

#include "base/CreditLine.h"

#include <QIcon>
#include <QLabel>
#include <QScreen>

namespace Quillbox {
namespace {

constexpr QSize PictureSize(420, 260);
constexpr QRect TitleArea(24, 184, 372, 44);
constexpr QRect CreditArea(24, 235, 372, 20);
constexpr int TitlePixels = 34;
constexpr int CreditPixels = 12;
constexpr const char *TitleColor = "#ffffff";
constexpr const char *CreditColor = "#b9d2f5";

/// Sized to the picture, whatever the desktop's fonts are. Where Tahoma is missing its relatives
/// stand in.
QFont PictureFont(int pixels, QFont::Weight weight) {
    QFont font;
    font.setFamilies({QStringLiteral("Tahoma"), QStringLiteral("Verdana"),
                      QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QLabel *AddLabel(QWidget *parent, const QString &name, const QRect &area) {
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setGeometry(area);
    return label;
}

struct TextStyle {
    QFont Font;
    QColor Color;
};

void AddText(QWidget *parent, const QString &name, const QRect &area, const QString &text,
             const TextStyle &style) {
    QLabel *label = AddLabel(parent, name, area);
    label->setText(text);
    label->setFont(style.Font);
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, style.Color);
    label->setPalette(colors);
}

} // namespace

frmLogo::frmLogo(std::function<void()> showMainWindow, EventLoop &events)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , Splash_{std::move(showMainWindow),
              [this] {
                  show();
                  raise();
              },
              [this] { close(); }, events} {
    setObjectName(QStringLiteral("frmLogo"));
    setWindowTitle(CreditLine);
    setFixedSize(PictureSize);
    move(screen()->geometry().center() - rect().center());
    AddLabel(this, QStringLiteral("Picture1"), QRect({0, 0}, PictureSize))
        ->setPixmap(QIcon(QStringLiteral(":/icons/splash.svg")).pixmap(PictureSize));
    AddText(this, QStringLiteral("Label1"), TitleArea, QStringLiteral("Quillbox"),
            {PictureFont(TitlePixels, QFont::Bold), TitleColor});
    AddText(this, QStringLiteral("lblCredit"), CreditArea, CreditLine,
            {PictureFont(CreditPixels, QFont::Normal), CreditColor});
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
