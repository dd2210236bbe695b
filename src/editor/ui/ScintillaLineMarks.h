// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

#include <optional>
#include <vector>

namespace Quillbox {

/// The marks of a text's lines, all kinds of them, kept while lines are taken out and put back.
class LineMarks {
  public:
    explicit LineMarks(const ScintillaText &text);
    void PutBack(const ScintillaText &text) const;

  private:
    struct MarkedLine {
        int Line;
        std::intptr_t Marks; ///< a bit for each mark
    };
    std::vector<MarkedLine> Lines_;
};

} // namespace Quillbox
