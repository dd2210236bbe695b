// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ColouringRules.h"
#include "surfaces/EditorContents.h"

#include <functional>
#include <string_view>

namespace Quillbox {

/// A stretch of a line in bytes.
struct WordExtent {
    std::size_t Start = 0;
    std::size_t Length = 0;
};

/// The word that touches `position`, a byte of `line` or its end; empty at `position` when there is
/// none. Digits that a word does not start with belong to no word.
WordExtent WordTouching(std::string_view line, std::size_t position);

/// The class of what touches `position`: that of the word there, else of the character behind the
/// position, else of the one before it. `styleOf` tells how a byte of the line is coloured.
TokenClass TokenClassTouching(std::string_view line, std::size_t position,
                              const std::function<TextStyle(std::size_t)> &styleOf);

} // namespace Quillbox
