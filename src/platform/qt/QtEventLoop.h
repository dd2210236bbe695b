// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EventLoop.h"

namespace Quillbox {

class QtEventLoop final : public EventLoop {
  public:
    void ProcessPendingEvents() override;
    void ProcessWindowEvents() override;
    void Yield() override;
    bool IsCtrlDown() override;
};

} // namespace Quillbox
