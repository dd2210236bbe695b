// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/TextPosition.h"

#include <QString>

#include <functional>
#include <string_view>

namespace Quillbox {

/// The class of the word at the caret.
enum class TokenClass {
    Unclassified = -1, ///< a word that is no keyword: ordinary text or a user word
    Text = 0,          ///< no word at all
    Keyword = 1,
    Number = 2,
    Operator = 3,
    Comment = 4,
    String = 5,
};

/// What an editor holds, for reading. Lines and columns are 0-based and count characters; a line
/// outside the text means the nearest one inside.
class EditorContents {
  public:
    virtual ~EditorContents() = default;

    /// At least 1: the empty text has one empty line.
    virtual int LineCount() const = 0;
    /// Without its line end.
    virtual QString LineText(LineIndex line) const = 0;
    /// A line's bytes in UTF-8 without its line end; false ends the visits.
    using LineVisitor = std::function<bool(LineIndex line, std::string_view utf8)>;
    /// Hands over the lines from the first to the last, without a copy. The text must not change
    /// meanwhile.
    virtual void VisitLines(const LineVisitor &visit) const = 0;
    /// The word that touches the caret, empty when there is none.
    virtual QString CurrentWord() const = 0;
    virtual TokenClass CurrentTokenClass() const = 0;

    /// The selection, normalised; empty at the caret when nothing is selected.
    virtual TextRange GetSel() const = 0;
    virtual bool IsModified() const = 0;
    /// The whole text; for small texts and tests, never on a hot path.
    virtual QString Text() const = 0;
};

} // namespace Quillbox
