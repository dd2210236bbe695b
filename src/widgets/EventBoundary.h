// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace Quillbox {

class Dialogs;
struct RuntimeError;

/// Where every action of a person enters the program. A run-time error, or memory that runs out,
/// ends the action here and is shown; the program goes on.
class EventBoundary {
  public:
    explicit EventBoundary(Dialogs &dialogs);

    void Run(const std::function<void()> &action) const;

  private:
    void Report(const RuntimeError &error) const;

    Dialogs &Dialogs_;
};

} // namespace Quillbox
