// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaColouring.h"
#include "editor/ui/ScintillaText.h"

namespace Quillbox {

/// A bracket at the caret and the one that belongs to it.
struct BracketPair {
    enum class Match {
        None,    ///< no bracket at the caret, or none that can be told to belong or not to belong
        Found,   ///< `Other` belongs to `Bracket`
        Missing, ///< nothing belongs to `Bracket`
    };
    Match Result = Match::None;
    BytePosition Bracket = -1;
    BytePosition Other = -1;
};

/// Looks at the brackets that touch the caret, outer sides first. A bracket in code belongs to one
/// in code, one in a string or comment to one in the same string or comment. What lies further away
/// than MostBytesToBracket is not looked for. Colours the text as far as it looks.
BracketPair FindBrackets(const ScintillaText &text, ScintillaColouring &colouring);
inline constexpr BytePosition MostBytesToBracket = 100'000;

void SetUpBracketMarks(const ScintillaText &text);
/// Marks the brackets at the caret.
void MarkBrackets(const ScintillaText &text, ScintillaColouring &colouring);
/// Puts the caret on the outer side of the bracket that belongs to the one at the caret; stays
/// where it is when there is none.
void GoToMatchingBracket(const ScintillaText &text, ScintillaColouring &colouring);

} // namespace Quillbox
