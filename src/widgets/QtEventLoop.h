// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/EventLoop.h"

#include <QElapsedTimer>

namespace Quillbox {

class QtEventLoop final : public EventLoop {
  public:
    void ProcessPendingEvents() override;
    void ProcessWindowEvents() override;
    /// Gives up the time slice once a millisecond: a second call within one has nothing left to
    /// give up. The clock is read at every 64th call only, since it costs more than what is done
    /// between.
    void GiveWay() override;
    bool IsCtrlDown() override;

  private:
    QElapsedTimer SinceYield_;
    unsigned Calls_ = 0;
};

} // namespace Quillbox
