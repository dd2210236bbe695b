// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Completion.h"
#include "surfaces/EditorAppearance.h"
#include "surfaces/EditorContents.h"

#include <functional>

namespace Quillbox {

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
class EditorControl : public EditorAppearance, public EditorContents {
  public:
    /// Puts the caret at the start of `line` and brings it into view.
    virtual void SetLinePosition(LineIndex line) = 0;

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
