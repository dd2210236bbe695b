// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/DebugMode.h"

#include "surfaces/MainWindow.h"

namespace Quillbox {

DebugMode::DebugMode(MainWindow &mainWindow)
    : MainWindow_(mainWindow) {}

void DebugMode::mnuPrograma_ModoDebug_Click() {
    On_ = !On_;
    MainWindow_.CheckCommand(QStringLiteral("mnuPrograma_ModoDebug"), On_);
}

} // namespace Quillbox
