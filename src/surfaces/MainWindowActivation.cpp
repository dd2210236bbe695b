// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfaces/MainWindowActivation.h"

#include "surfaces/EventLoop.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

MainWindowActivation::MainWindowActivation(MainWindow &mainWindow, EventLoop &events)
    : MainWindow_(mainWindow)
    , Events_(events) {}

void MainWindowActivation::Activate() {
    MainWindow_.Activate();
    Events_.ProcessPendingEvents();
}

} // namespace Quillbox
