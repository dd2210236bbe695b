// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/GoToLineDialog.h"
#include "editor/ui/ScintillaBrackets.h"
#include "editor/ui/ScintillaCarets.h"
#include "editor/ui/ScintillaCompletion.h"
#include "editor/ui/ScintillaEditor.h"
#include "editor/ui/ScintillaMarks.h"
#include "editor/ui/ScintillaPrinting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Quillbox {

bool ScintillaEditor::CanCopy() const { return HasSelection(Text_); }
void ScintillaEditor::Copy() { CopySelections(Text_); }

bool ScintillaEditor::CanCut() const { return CanCopy(); }
void ScintillaEditor::Cut() {
    if (!HasSelection(Text_))
        return;
    CopySelections(Text_);
    DeleteSel();
}

bool ScintillaEditor::CanPaste() const {
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasText();
}
void ScintillaEditor::Paste() {
    Perform([this] {
        if (!PasteLineByLine())
            Text_.Send(SCI_PASTE);
    });
}

/// Each of several carets gets a line of its own when there are as many lines.
bool ScintillaEditor::PasteLineByLine() {
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    bool rectangular = false;
    if (content == nullptr || CaretCount(Text_) == 1)
        return false;
    const QByteArray bytes = fromMimeData(content, rectangular).replace("\r\n", "\n");
    const QList<QByteArray> lines = bytes.split('\n');
    if (rectangular || lines.size() != CaretCount(Text_))
        return false;
    ReplaceSelections(Text_, [&](const CaretPlace &caret) {
        return caret.Blanks + lines[caret.Number].toStdString();
    });
    return true;
}

bool ScintillaEditor::CanUndo() const { return Text_.Send(SCI_CANUNDO) != 0; }
void ScintillaEditor::Undo() {
    Perform([this] { Text_.Send(SCI_UNDO); });
}

bool ScintillaEditor::CanRedo() const { return Text_.Send(SCI_CANREDO) != 0; }
void ScintillaEditor::Redo() {
    Perform([this] { Text_.Send(SCI_REDO); });
}

/// A window that the system activates only later gives the keyboard then. Whoever asked counts on
/// the editor having been told.
void ScintillaEditor::SetFocus() {
    const bool hadFocus = hasFocus();
    setFocus(Qt::OtherFocusReason);
    if (hadFocus || !hasFocus())
        emit FocusReceived();
}

void ScintillaEditor::ExecuteCommand(EditorCommand command) {
    switch (command) {
    case EditorCommand::SelectAll:
        Text_.Send(SCI_SELECTALL);
        break;
    case EditorCommand::FindAndReplace:
    case EditorCommand::FindNext:
    case EditorCommand::FindPrevious:
        emit FindRequested(command);
        break;
    case EditorCommand::DeleteNextCharacter:
        Perform([this] { Text_.Send(SCI_CLEAR); });
        break;
    case EditorCommand::ToggleBookmark:
        ToggleBookmark(Text_);
        break;
    case EditorCommand::PreviousBookmark:
        GoToBookmark(Text_, MarkDirection::Previous);
        break;
    case EditorCommand::NextBookmark:
        GoToBookmark(Text_, MarkDirection::Next);
        break;
    case EditorCommand::ClearBookmarks:
        ClearBookmarks(Text_);
        break;
    case EditorCommand::FirstBookmark:
        GoToFirstBookmark(Text_);
        break;
    case EditorCommand::LastBookmark:
        GoToLastBookmark(Text_);
        break;
    case EditorCommand::GoToLine:
        GoToLine(*this);
        break;
    case EditorCommand::GoToMatchingBracket:
        GoToMatchingBracket(Text_, Colouring_);
        break;
    case EditorCommand::SelectNextOccurrence:
        SelectNextOccurrence(Text_);
        break;
    }
}

void ScintillaEditor::Print(const QString &fileName) { ShowPrintPreview(*this, fileName); }

void ScintillaEditor::PrintOn(EditorPrinter &printer, int lineCount) {
    const LineIndex last = Text_.NearestLine({lineCount - 1});
    Colouring_.PrepareTextUpTo(Text_.NextLineStart(last));
    Text_.Send(SCI_SETPRINTCOLOURMODE, SC_PRINT_COLOURONWHITE);
    printer.StartCounting();
    printer.printRange(this, 0, last.Value);
}

void ScintillaEditor::CompleteWord(const Completions &candidates) {
    Completion_->Start(candidates);
}

} // namespace Quillbox
