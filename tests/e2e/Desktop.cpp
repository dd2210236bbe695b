// SPDX-License-Identifier: GPL-3.0-or-later
#include "Desktop.h"

namespace Quillbox {
namespace {

constexpr int StartMilliseconds = 15000;

void Stop(QProcess &process) {
    process.terminate();
    if (!process.waitForFinished(3000))
        process.kill();
    process.waitForFinished(3000);
}

} // namespace

Desktop::Desktop(int scale) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("WAYLAND_DISPLAY");
    Running_ = StartDisplay() && StartWindowManager();
}

Desktop::~Desktop() {
    Stop(WindowManager_);
    Stop(Display_);
}

/// The display chooses a free number itself and prints it.
bool Desktop::StartDisplay() {
    Display_.setStandardErrorFile(QProcess::nullDevice());
    Display_.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1600x1200x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp")});
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
    return WindowManager_.waitForStarted(StartMilliseconds);
}

} // namespace Quillbox
