// SPDX-License-Identifier: GPL-3.0-or-later
#include "Desktop.h"

#include "XDisplay.h"

#include <QDeadlineTimer>
#include <QSize>
#include <QThread>

namespace Quillbox {
namespace {

constexpr int StartMilliseconds = 60000;
/// Of the display at 100 %, in pixels.
constexpr QSize DisplaySize(1600, 1200);

void Stop(QProcess &process) {
    process.terminate();
    if (!process.waitForFinished(3000))
        process.kill();
    process.waitForFinished(3000);
}

bool RunTool(const QString &tool, const QStringList &arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(tool, arguments);
    return process.waitForFinished(StartMilliseconds) && process.exitCode() == 0;
}

bool WaitForWindowManager() {
    XDisplay display;
    for (QDeadlineTimer deadline(StartMilliseconds); !display.HasWindowManager();
         QThread::msleep(10))
        if (deadline.hasExpired())
            return false;
    return true;
}

} // namespace

Desktop::Desktop(int scale) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("WAYLAND_DISPLAY");
    Running_ = StartDisplay(scale) && StartWindowManager() &&
               RunTool(QStringLiteral("setxkbmap"), {QStringLiteral("es")});
}

Desktop::~Desktop() {
    Stop(WindowManager_);
    Stop(Display_);
}

/// The display chooses a free number itself and prints it. It must not start over when a client
/// goes that was the only one.
bool Desktop::StartDisplay(int scale) {
    const QString screen = QStringLiteral("%1x%2x24")
                               .arg(DisplaySize.width() * scale)
                               .arg(DisplaySize.height() * scale);
    Display_.setStandardErrorFile(QProcess::nullDevice());
    Display_.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), screen, QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                    QStringLiteral("-noreset")});
    QByteArray number;
    while (!number.contains('\n')) {
        if (!Display_.waitForReadyRead(StartMilliseconds))
            return false;
        number += Display_.readAllStandardOutput();
    }
    return qputenv("DISPLAY", ':' + number.trimmed());
}

bool Desktop::StartWindowManager() {
    WindowManager_.setStandardErrorFile(QProcess::nullDevice());
    WindowManager_.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    return WindowManager_.waitForStarted(StartMilliseconds) && WaitForWindowManager();
}

} // namespace Quillbox
