// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindCommands.h"

#include "editor/ui/ScintillaEditor.h"
#include "search/ui/FindDialog.h"
#include "search/ui/FindMarks.h"
#include "search/ui/FindMessages.h"
#include "search/ui/FindNotice.h"

namespace Quillbox {
namespace {

/// `editor` has got the keyboard.
void FollowFocus(FindState &state, ScintillaEditor &editor) {
    state.Editor = &editor;
    if (state.Dialog)
        state.Dialog->FollowEditor();
}

void ShowFindDialog(FindState &state, ScintillaEditor &editor) {
    FollowFocus(state, editor);
    ShowFindNotice(*editor.viewport(), {});
    if (!state.Dialog)
        state.Dialog = new FindDialog(state, editor.window());
    state.Dialog->Open();
}

/// Selects the next match of the last request in that direction; a notice in the editor tells what
/// there is to tell while the dialog is closed. Opens the dialog when there is no term.
void FindAgain(FindState &state, ScintillaEditor &editor, FindDirection direction) {
    if (state.Request.Term.isEmpty())
        return ShowFindDialog(state, editor);
    FollowFocus(state, editor);
    if (state.Dialog && state.Dialog->isVisible())
        return state.Dialog->Repeat(direction);
    const FindTask task{state.Request, state.Wrap, std::nullopt};
    const FindOutcome outcome = SelectMatch(editor, task, direction);
    ShowFindNotice(*editor.viewport(), MessageOf(outcome, task, direction));
}

void CarryOut(EditorCommand command, FindState &state, ScintillaEditor &editor) {
    if (command == EditorCommand::FindAndReplace)
        ShowFindDialog(state, editor);
    else if (command == EditorCommand::FindPrevious)
        FindAgain(state, editor, FindDirection::Backward);
    else
        FindAgain(state, editor, FindDirection::Forward);
}

void TellTextReplaced(const FindState &state, const ScintillaEditor &editor) {
    if (state.Dialog && state.Editor == &editor)
        state.Dialog->TextReplaced();
}

} // namespace

void ConnectFinding(ScintillaEditor &editor, FindState &state) {
    const auto on = [&editor](auto signal, auto action) {
        QObject::connect(&editor, signal, &editor, action);
    };
    on(&ScintillaEditor::FindRequested,
       [&](EditorCommand command) { CarryOut(command, state, editor); });
    on(&ScintillaEditor::FocusReceived, [&] { FollowFocus(state, editor); });
    on(&ScintillaEditor::OtherTextShown, [&] { TellTextReplaced(state, editor); });
    on(&ScintillaEditor::TextIsLeaving, [&] { FindMarks::Remove(ScintillaText(editor)); });
}

} // namespace Quillbox
