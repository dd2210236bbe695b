// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

/// What rules need of the user interface's event loop and keyboard.
class EventLoop {
  public:
    virtual ~EventLoop() = default;

    /// Handles the events that are waiting, then returns. What the person did meanwhile is among
    /// them, so commands can be entered from here.
    virtual void ProcessPendingEvents() = 0;
    /// Handles the waiting events except what the person did, so that changes show at once.
    virtual void ProcessWindowEvents() = 0;
    /// Gives up the rest of the time slice without handling events.
    virtual void GiveWay() = 0;
    /// The state of a Ctrl key at this moment.
    virtual bool IsCtrlDown() = 0;
};

} // namespace Quillbox
