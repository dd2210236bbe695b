// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace Quillbox {

/// A word that may complete what a person has begun to type.
struct Completion {
    QString Word; ///< as it is inserted
    QString Help; ///< one line about it; may be empty

    bool operator==(const Completion &) const = default;
};

using Completions = std::vector<Completion>;

} // namespace Quillbox
