// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

#include <QStringList>

#include <functional>
#include <string>

namespace Quillbox {

/// Lets an editing component have several carets and select columns.
void SetUpSeveralCarets(const ScintillaText &text);

/// At least 1.
int CaretCount(const ScintillaText &text);

/// True when any caret has something selected.
bool HasSelection(const ScintillaText &text);

/// One of several carets.
struct CaretPlace {
    int Number;         ///< 0-based, in the order of the text
    BytePosition Start; ///< of its selection
    std::string Blanks; ///< as many as it stands beyond the end of its line
};

/// Replaces what each caret has selected, as one undo step; afterwards each stands behind its
/// replacement.
using ReplacementMaker = std::function<std::string(const CaretPlace &caret)>;
void ReplaceSelections(const ScintillaText &text, const ReplacementMaker &replacementFor);

/// Copies what is selected; that of several carets as lines in the order of the text.
void CopySelections(const ScintillaText &text);

/// The carets that are not the main one go; what that one has selected stays so.
void KeepMainCaret(const ScintillaText &text);

/// Selects the word at the caret; where something is selected, also the next text like it in any
/// letter case, at a caret more.
void SelectNextOccurrence(const ScintillaText &text);

} // namespace Quillbox
