// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/FindDialog.h"
#include "platform/qt/ScintillaEditor.h"
#include "platform/qt/ScintillaMarks.h"
#include "platform/qt/ScintillaPrinting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrintDialog>

namespace Quillbox {

bool ScintillaEditor::CanCopy() const { return Text_.SelectionStart() != Text_.SelectionEnd(); }
void ScintillaEditor::Copy() { Text_.Send(SCI_COPY); }

bool ScintillaEditor::CanCut() const { return CanCopy(); }
void ScintillaEditor::Cut() {
    Perform([this] { Text_.Send(SCI_CUT); });
}

bool ScintillaEditor::CanPaste() const {
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasText();
}
void ScintillaEditor::Paste() {
    Perform([this] { Text_.Send(SCI_PASTE); });
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
    setFocus(Qt::OtherFocusReason);
    if (!hasFocus())
        emit FocusReceived();
}

void ScintillaEditor::ExecuteCommand(EditorCommand command) {
    switch (command) {
    case EditorCommand::SelectAll:
        Text_.Send(SCI_SELECTALL);
        break;
    case EditorCommand::FindAndReplace:
        ShowFindDialog(Find_, *this);
        break;
    case EditorCommand::FindNext:
        FindNext(Find_, *this);
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
    }
}

void ScintillaEditor::Print(const QString &fileName) {
    EditorPrinter printer(fileName);
    QPrintDialog dialog(&printer, window());
    if (dialog.exec() == QDialog::Accepted)
        PrintOn(printer);
}

void ScintillaEditor::PrintOn(EditorPrinter &printer) {
    Colouring_.PrepareWholeText();
    Text_.Send(SCI_SETPRINTCOLOURMODE, SC_PRINT_COLOURONWHITE);
    printer.printRange(this);
}

} // namespace Quillbox
