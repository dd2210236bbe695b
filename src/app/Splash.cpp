// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Splash.h"

#include "surfaces/EventLoop.h"

namespace Quillbox {

void Splash::tmrTimer_Timer() {
    if (MainShown)
        return CloseSplash();
    ShowMainWindow();
    Events.ProcessPendingEvents();
    ShowSplash();
    MainShown = true;
}

} // namespace Quillbox
