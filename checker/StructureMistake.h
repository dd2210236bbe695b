// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Quillbox {

struct StructureMistake {
    int LineNumber; // 1-based
    std::string
        Message; // Spanish, UTF-8, without a colon: the editor cuts the line at the last one
};

// The first mistake of a program's structure in text order: blocks, strings and brackets.
// A block that is still open at the end of the text is reported on the line that opens it, the
// innermost first. Names, types and values are not looked at, so a program without mistakes here
// may still be wrong.
std::optional<StructureMistake> FindStructureMistake(std::string_view source);

} // namespace Quillbox
