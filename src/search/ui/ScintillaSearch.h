// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "search/ui/FindState.h"

namespace Quillbox {

enum class FindDirection { Forward, Backward };

struct FindOutcome {
    std::optional<MovingRange> Match; ///< nothing when there is none
    bool Wrapped = false;             ///< the match lies beyond the end of the text or scope
    QString Problem; ///< for the person, when the search could not be made or not to its end
};

/// What an expression that takes longer is told of.
std::chrono::milliseconds LongestSearch(const ScintillaText &text);

QString TooCostlyProblem();

/// The stretch of the text in which matches of `task` count.
MovingRange RangeOf(const FindTask &task, const ScintillaText &text);

/// Selects the next match behind (or before) the selection and brings it into view. When all of
/// the scope is selected it begins at its start (or end). An empty match where the caret stands
/// already is passed over. Without a match the selection stays.
FindOutcome SelectMatch(QsciScintillaBase &editor, const FindTask &task, FindDirection direction);

/// Selects the stretch; one out of view comes to the middle.
void SelectInView(const ScintillaText &text, const MovingRange &range);

} // namespace Quillbox
