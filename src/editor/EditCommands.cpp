// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditCommands.h"

#include "editor/LineCommands.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

/// Runs `Operation` when the editor says that it can.
template <bool (EditorControl::*Can)() const, void (EditorControl::*Operation)()>
void RunIfPossible(EditorControl &editor) {
    if ((editor.*Can)())
        (editor.*Operation)();
}

template <EditorCommand Command>
void RunNumbered(EditorControl &editor) {
    editor.ExecuteCommand(Command);
}

void Delete(EditorControl &editor) {
    if (!editor.GetSel().IsEmpty())
        editor.DeleteSel();
}

constexpr EditCommand Commands[] = {
    {"mnuEdicion_Deshacer", RunIfPossible<&EditorControl::CanUndo, &EditorControl::Undo>},
    {"mnuEdicion_Rehacer", RunIfPossible<&EditorControl::CanRedo, &EditorControl::Redo>},
    {"mnuEdicion_Cortar", RunIfPossible<&EditorControl::CanCut, &EditorControl::Cut>},
    {"mnuEdicion_Copiar", RunIfPossible<&EditorControl::CanCopy, &EditorControl::Copy>},
    {"mnuEdicion_Pegar", RunIfPossible<&EditorControl::CanPaste, &EditorControl::Paste>},
    {"mnuEdición_Eliminar", Delete},
    {"mnuEdicion_SeleccionarTodo", RunNumbered<EditorCommand::SelectAll>},
    {"mnuEdicion_BuscarReemplazar", RunNumbered<EditorCommand::FindAndReplace>},
    {"mnuEdicion_BuscarSiguiente", RunNumbered<EditorCommand::FindNext>},
    {"mnuEdicion_BuscarAnterior", RunNumbered<EditorCommand::FindPrevious>},
    {"mnuEdicion_IrALinea", RunNumbered<EditorCommand::GoToLine>},
    {"mnuEdicion_IrACorchete", RunNumbered<EditorCommand::GoToMatchingBracket>},
    {"mnuEdicion_SeleccionarSiguiente", RunNumbered<EditorCommand::SelectNextOccurrence>},
    {"mnuEdicion_InsertarEliminarBookmark", RunNumbered<EditorCommand::ToggleBookmark>},
    {"mnuEdicion_BookmarkSiguiente", RunNumbered<EditorCommand::NextBookmark>},
    {"mnuEdicion_BookmarkAnterior", RunNumbered<EditorCommand::PreviousBookmark>},
    {"mnuEdicion_PrimerBookmark", RunNumbered<EditorCommand::FirstBookmark>},
    {"mnuEdicion_UltimoBookmark", RunNumbered<EditorCommand::LastBookmark>},
    {"mnuEdicion_EliminarTodosBookmarks", RunNumbered<EditorCommand::ClearBookmarks>},
    {"mnuEdicion_DesplazarDerecha", IndentLines},
    {"mnuEdicion_DesplazarIzquierda", OutdentLines},
};

} // namespace

std::span<const EditCommand> EditCommands() { return Commands; }

} // namespace Quillbox
