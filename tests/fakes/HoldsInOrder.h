// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Quillbox {

/// All of `names`, in their order; further ones may stand between them.
MATCHER_P(HoldsInOrder, names, "holds in order " + testing::PrintToString(names)) {
    std::vector<std::string> found(arg.begin(), arg.end());
    std::erase_if(found, [this](const std::string &name) {
        return std::ranges::find(names, name) == names.end();
    });
    return testing::ExplainMatchResult(testing::ElementsAreArray(names), found, result_listener);
}

} // namespace Quillbox
