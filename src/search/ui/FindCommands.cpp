// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindDialog.h"
#include "search/ui/FindMessages.h"
#include "search/ui/FindNotice.h"

namespace Quillbox {

void ShowFindDialog(FindState &state, QsciScintillaBase &editor) {
    FollowFocus(state, editor);
    ShowFindNotice(*editor.viewport(), {});
    if (!state.Dialog)
        state.Dialog = new FindDialog(state, editor.window());
    state.Dialog->Open();
}

void FindAgain(FindState &state, QsciScintillaBase &editor, FindDirection direction) {
    if (state.Request.Term.isEmpty())
        return ShowFindDialog(state, editor);
    FollowFocus(state, editor);
    if (state.Dialog && state.Dialog->isVisible())
        return state.Dialog->Repeat(direction);
    const FindTask task{state.Request, state.Wrap, std::nullopt};
    const FindOutcome outcome = SelectMatch(editor, task, direction);
    ShowFindNotice(*editor.viewport(), MessageOf(outcome, task, direction));
}

void FollowFocus(FindState &state, QsciScintillaBase &editor) {
    state.Editor = &editor;
    if (state.Dialog)
        state.Dialog->FollowEditor();
}

void TellTextReplaced(const FindState &state, const QsciScintillaBase &editor) {
    if (state.Dialog && state.Editor == &editor)
        state.Dialog->TextReplaced();
}

} // namespace Quillbox
