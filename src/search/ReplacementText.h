// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/TextSearch.h"

#include <string>
#include <vector>

namespace Quillbox {

/// What takes the place of a match, in UTF-8.
class ReplacementText {
  public:
    /// The same bytes for each match.
    static ReplacementText AsItStands(std::string_view utf8);
    /// "\0" and "$0" stand for the match, "\1" to "\9" and "$1" to "$9" for its groups, "\n" for
    /// `lineEnd`, "\t" for a tab, "\\" for "\" and "$$" for "$". Anything else stands for itself.
    static ReplacementText WithGroups(std::string_view utf8, std::string_view lineEnd);

    /// `match` was found in `lines`.
    void AppendTo(std::string &bytes, std::string_view lines, const TextMatch &match) const;
    bool HasLineEnd() const { return HasLineEnd_; }

  private:
    struct Part {
        std::string Text;
        int Group; ///< -1 for none; follows the text
    };

    static constexpr int NoGroup = -1;

    std::vector<Part> Parts_;
    bool HasLineEnd_ = false;
};

} // namespace Quillbox
