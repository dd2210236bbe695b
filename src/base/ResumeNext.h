// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"

#include <optional>
#include <utility>

namespace Quillbox {

/// A procedure in "resume next" mode: a step that ends in a run-time error is left and the next one
/// runs.
class ResumeNext {
  public:
    template <typename Step>
    void Try(Step &&step) {
        try {
            std::forward<Step>(step)();
        } catch (const RuntimeError &error) {
            Pending_ = error;
        }
    }

    bool IsErrorPending() const { return Pending_.has_value(); }

  private:
    std::optional<RuntimeError> Pending_;
};

} // namespace Quillbox
