// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EventLoop.h"

#include <QElapsedTimer>

namespace Quillbox {

class QtEventLoop final : public EventLoop {
  public:
    void ProcessPendingEvents() override;
    void ProcessWindowEvents() override;
    /// A second call in the same millisecond has nothing left to give up and returns at once.
    void Yield() override;
    bool IsCtrlDown() override;

  private:
    QElapsedTimer SinceYield_;
};

} // namespace Quillbox
