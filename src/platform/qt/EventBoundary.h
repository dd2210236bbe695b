// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace Quillbox {

class Dialogs;

/// Where every action of a person enters the program. A run-time error ends the action here and is
/// shown; the program goes on.
class EventBoundary {
  public:
    explicit EventBoundary(Dialogs &dialogs);

    void Run(const std::function<void()> &action) const;

  private:
    Dialogs &Dialogs_;
};

} // namespace Quillbox
