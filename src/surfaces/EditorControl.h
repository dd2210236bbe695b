// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"
#include "base/TextPosition.h"
#include "surfaces/Completion.h"

#include <QString>

#include <functional>
#include <string_view>

namespace Quillbox {

/// Colour slots of the editor control. Each class of text has a foreground and a background slot.
enum class ColorSlot {
    Window = 0, ///< what lies behind and below the text
    Margin = 1, ///< background of the margin with line numbers and bookmarks
    Text = 4,
    TextBackground = 5,
    Number = 6,
    NumberBackground = 7,
    Keyword = 8,
    KeywordBackground = 9,
    Operator = 10,
    OperatorBackground = 11,
    Comment = 14,
    CommentBackground = 15,
    String = 16,
    StringBackground = 17,
    UserWord = 20, ///< the document's own function names
    UserWordBackground = 21,
    MarginDivider = 27,   ///< the line between the margin and the text
    HighlightedLine = 30, ///< tint of the line that an error message names
};

/// Classes of text that carry a font style of their own.
enum class FontStyleClass {
    Text = 0,
    Number = 1,
    Keyword = 2,
    Operator = 3,
    Comment = 5,
    String = 6,
    UserWord = 8,
};

/// Font styles as the settings file numbers them; any other number shows as `Normal`.
enum class FontStyle { Normal = 0, Bold = 1, Italic = 2, BoldItalic = 3, Underline = 4 };

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

/// The editor control's numbered commands.
enum class EditorCommand {
    SelectAll = 137,
    FindAndReplace = 169,
    FindNext = 176,
    DeleteNextCharacter = 195,
    ToggleBookmark = 204,
    PreviousBookmark = 205,
    NextBookmark = 206,
    ClearBookmarks = 207,
    FirstBookmark = 208,
    LastBookmark = 209,
    // The numbers from 300 on are Quillbox's own.
    GoToLine = 301,             ///< asks for a line
    GoToMatchingBracket = 302,  ///< of the bracket at the caret
    SelectNextOccurrence = 303, ///< the word at the caret, then also the next text like it
    FindPrevious = 304,
};

/// The operations of one document's editor. Lines and columns are 0-based and count characters;
/// a line or column outside the text means the nearest one inside.
class EditorControl {
  public:
    virtual ~EditorControl() = default;

    /// Chooses a registered language by its name; an unknown name leaves the text uncoloured.
    virtual void SetLanguage(const QString &name) = 0;
    virtual void SetColorSyntax(bool on) = 0;
    virtual void SetColor(ColorSlot slot, Color color) = 0;
    /// `style` is one of FontStyle; any other number shows as normal text.
    virtual void SetFontStyle(FontStyleClass textClass, int style) = 0;
    virtual void SetFontName(const QString &name) = 0;
    /// In points; 0 leaves the smallest size that can be shown.
    virtual void SetFontSize(int points) = 0;
    /// Width of a tab stop in columns; 0 counts as 1.
    virtual void SetTabSize(int columns) = 0;
    virtual void SetLineNumbers(bool shown) = 0;

    /// At least 1: the empty text has one empty line.
    virtual int LineCount() const = 0;
    /// Without its line end.
    virtual QString LineText(LineIndex line) const = 0;
    /// A line's bytes in UTF-8 without its line end; false ends the visits.
    using LineVisitor = std::function<bool(LineIndex line, std::string_view utf8)>;
    /// Hands over the lines from the first to the last, without a copy. The text must not change
    /// meanwhile.
    virtual void VisitLines(const LineVisitor &visit) const = 0;
    /// Puts the caret at the start of `line` and brings it into view.
    virtual void SetLinePosition(LineIndex line) = 0;

    /// The word that touches the caret, empty when there is none.
    virtual QString CurrentWord() const = 0;
    virtual TokenClass CurrentTokenClass() const = 0;

    /// The selection, normalised; empty at the caret when nothing is selected.
    virtual TextRange GetSel() const = 0;
    virtual void DeleteSel() = 0;
    virtual bool CanCopy() const = 0;
    virtual void Copy() = 0;
    virtual bool CanCut() const = 0;
    virtual void Cut() = 0;
    virtual bool CanPaste() const = 0;
    virtual void Paste() = 0;
    virtual bool CanUndo() const = 0;
    virtual void Undo() = 0;
    virtual bool CanRedo() const = 0;
    virtual void Redo() = 0;

    /// Loads the file as ANSI text, unmodified and with nothing to undo. When it cannot be read the
    /// control tells the person why and keeps the text it had.
    virtual bool OpenFile(const QString &path) = 0;
    /// Writes the text as ANSI bytes: afterwards the file holds all old or all new bytes. Success
    /// clears the modified flag; a failure tells the person why and leaves the flag as it is.
    virtual bool SaveFile(const QString &path) = 0;
    virtual bool IsModified() const = 0;
    /// The whole text; for small texts and tests, never on a hot path.
    virtual QString Text() const = 0;
    /// Takes over text, modified flag, undo history, marks, caret, scroll position and zoom of
    /// `other` without copying the text. Until `other` is closed or takes over another text, both
    /// show it.
    virtual void TakeContentsFrom(EditorControl &other) = 0;
    /// Gives the editor the keyboard, of which it is told before the call returns.
    virtual void SetFocus() = 0;
    /// Shows the pages, each with file name and page number; from there the person prints them.
    /// Errors are ignored.
    virtual void Print(const QString &fileName) = 0;

    /// Tints a line until the next edit or the next call; -1 tints none.
    virtual void SetHighlightedLine(LineIndex line) = 0;
    /// Makes `line` the first visible line as far as the text reaches; -1 counts as 0.
    virtual void SetTopIndex(LineIndex line) = 0;
    /// Puts the caret there with nothing selected.
    virtual void SetCaretPos(TextPosition position) = 0;
    virtual void ExecuteCommand(EditorCommand command) = 0;
    /// Completes the word before the caret with the candidate that begins with it; of several the
    /// person chooses in a list, which follows what is typed meanwhile. With none nothing happens.
    virtual void CompleteWord(const Completions &candidates) = 0;
    virtual void InsertText(const QString &text, TextPosition position) = 0;
    /// What `edits` does to the text is undone and told to listeners at once.
    virtual void AsOneUndoStep(const std::function<void()> &edits) = 0;
    /// Replaces the selection, or inserts at the caret when it is empty.
    virtual void ReplaceSel(const QString &text) = 0;
};

} // namespace Quillbox
