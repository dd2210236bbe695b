// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditCommands.h"

#include "surfaces/EditorControl.h"

namespace Quillbox {

void Undo(EditorControl &editor) {
    if (editor.CanUndo())
        editor.Undo();
}

void Redo(EditorControl &editor) {
    if (editor.CanRedo())
        editor.Redo();
}

void Cut(EditorControl &editor) {
    if (editor.CanCut())
        editor.Cut();
}

void Copy(EditorControl &editor) {
    if (editor.CanCopy())
        editor.Copy();
}

void Paste(EditorControl &editor) {
    if (editor.CanPaste())
        editor.Paste();
}

void Delete(EditorControl &editor) {
    if (!editor.GetSel().IsEmpty())
        editor.DeleteSel();
}

} // namespace Quillbox
