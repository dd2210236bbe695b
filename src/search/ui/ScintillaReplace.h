// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/ui/ScintillaSearch.h"

namespace Quillbox {

struct Replaced {
    bool Selection = false; ///< the selection was a match
    FindOutcome Next;
};

/// Whether the caret alone counts as an empty match.
enum class EmptyMatch { Passed, Taken };

/// Replaces the selection when it is a match; then selects the next match.
Replaced ReplaceMatch(QsciScintillaBase &editor, const FindTask &task, const QString &replacement,
                      EmptyMatch emptyMatch);

struct ReplacedAll {
    std::size_t Count = 0;
    QString Problem; ///< for the person; then nothing is replaced
};

/// Replaces every match as one undo step. Caret, marks of lines and what is in view stay where
/// they are; taking it back keeps the marks in their lines, too.
ReplacedAll ReplaceAllMatches(QsciScintillaBase &editor, const FindTask &task,
                              const QString &replacement);

} // namespace Quillbox
