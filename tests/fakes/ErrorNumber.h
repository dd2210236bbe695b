// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"

#include <utility>

namespace Quillbox {

/// The number of the run-time error that ends `action`; 0 when it runs to its end.
template <typename Action>
int ErrorNumberOf(Action &&action) {
    try {
        std::forward<Action>(action)();
    } catch (const RuntimeError &error) {
        return error.Number;
    }
    return 0;
}

} // namespace Quillbox
