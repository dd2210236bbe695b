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

#include <map>

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
    using Execution = void (*)(ScintillaEditor &);
    static const std::map<EditorCommand, Execution> executions = {
        {EditorCommand::SelectAll, [](auto &on) { on.Text_.Send(SCI_SELECTALL); }},
        {EditorCommand::FindAndReplace,
         [](auto &on) { emit on.FindRequested(EditorCommand::FindAndReplace); }},
        {EditorCommand::FindNext, [](auto &on) { emit on.FindRequested(EditorCommand::FindNext); }},
        {EditorCommand::FindPrevious,
         [](auto &on) { emit on.FindRequested(EditorCommand::FindPrevious); }},
        {EditorCommand::DeleteNextCharacter,
         [](auto &on) { on.Perform([&] { on.Text_.Send(SCI_CLEAR); }); }},
        {EditorCommand::ToggleBookmark, [](auto &on) { ToggleBookmark(on.Text_); }},
        {EditorCommand::PreviousBookmark,
         [](auto &on) { GoToBookmark(on.Text_, MarkDirection::Previous); }},
        {EditorCommand::NextBookmark,
         [](auto &on) { GoToBookmark(on.Text_, MarkDirection::Next); }},
        {EditorCommand::ClearBookmarks, [](auto &on) { ClearBookmarks(on.Text_); }},
        {EditorCommand::FirstBookmark, [](auto &on) { GoToFirstBookmark(on.Text_); }},
        {EditorCommand::LastBookmark, [](auto &on) { GoToLastBookmark(on.Text_); }},
        {EditorCommand::GoToLine, [](auto &on) { GoToLine(on); }},
        {EditorCommand::GoToMatchingBracket,
         [](auto &on) { GoToMatchingBracket(on.Text_, on.Colouring_); }},
        {EditorCommand::SelectNextOccurrence, [](auto &on) { SelectNextOccurrence(on.Text_); }},
    };
    executions.at(command)(*this);
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
