// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "search/ui/FindState.h"

#include <vector>

namespace Quillbox {

/// Marks the matches that are in view, and some lines around them.
class FindMarks {
  public:
    /// To be called once for each editor before its first marks.
    static void Prepare(const ScintillaText &text);
    static void Remove(const ScintillaText &text);

    /// Marks what `task` finds. A task without a term marks nothing.
    void Show(const ScintillaText &text, const FindTask &task);
    /// The marks of the text are no longer those that were shown.
    void Forget() { IsShown_ = false; }
    /// Another text: what took too long in the one before is tried again.
    void BeginText() { GivenUp_ = {}; }

  private:
    std::vector<MovingRange> MatchesInView(const ScintillaText &text, const FindTask &task);

    bool IsShown_ = false;
    std::vector<MovingRange> Shown_;
    FindRequest GivenUp_; ///< it took too long; not tried again with each change of the view
};

} // namespace Quillbox
