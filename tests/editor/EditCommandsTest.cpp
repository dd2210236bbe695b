// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditCommands.h"

#include "fakes/FakeEditor.h"
#include "fakes/TestRow.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An editor whose answers differ from operation to operation.
class ChoosyEditor : public FakeEditor {
  public:
    using FakeEditor::FakeEditor;

    std::set<std::string> Allowed;

    bool CanCopy() const override { return Allowed.contains("Copy"); }
    bool CanCut() const override { return Allowed.contains("Cut"); }
    bool CanPaste() const override { return Allowed.contains("Paste"); }
    bool CanUndo() const override { return Allowed.contains("Undo"); }
    bool CanRedo() const override { return Allowed.contains("Redo"); }
};

void RunCommand(const char *name, EditorControl &editor) {
    const auto found =
        std::ranges::find(EditCommands(), QString::fromUtf8(name), [](const EditCommand &command) {
            return QString::fromUtf8(command.Name);
        });
    ASSERT_NE(found, EditCommands().end()) << name;
    found->Run(editor);
}

struct Operation : TestRow {
    const char *Item;
};

const std::set<std::string> AllOperations = {"Undo", "Redo", "Cut", "Copy", "Paste"};

class ClipboardAndUndoCommand : public testing::TestWithParam<Operation> {
  protected:
    CallLog Log;
    FakeDisk Disk;
    ChoosyEditor Editor{Log, Disk};
};

TEST_P(ClipboardAndUndoCommand, RunsWhenTheEditorSaysThatItCan) {
    Editor.Allowed = {GetParam().Name};

    RunCommand(GetParam().Item, Editor);

    EXPECT_THAT(Log.Calls(), ElementsAre(std::string("editor.") + GetParam().Name));
}

TEST_P(ClipboardAndUndoCommand, DoesNothingWhenTheEditorSaysThatItCannot) {
    Editor.Allowed = AllOperations;
    Editor.Allowed.erase(GetParam().Name);

    RunCommand(GetParam().Item, Editor);

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EditMenu, ClipboardAndUndoCommand,
                         testing::Values(Operation{"Undo", "mnuEdicion_Deshacer"},
                                         Operation{"Redo", "mnuEdicion_Rehacer"},
                                         Operation{"Cut", "mnuEdicion_Cortar"},
                                         Operation{"Copy", "mnuEdicion_Copiar"},
                                         Operation{"Paste", "mnuEdicion_Pegar"}),
                         RowName);

class DeleteCommand : public testing::Test {
  protected:
    CallLog Log;
    FakeDisk Disk;
    FakeEditor Editor{Log, Disk};
};

TEST_F(DeleteCommand, RemovesTheSelection) {
    Editor.Selection = {{{2}, {0}}, {{2}, {1}}};

    RunCommand("mnuEdición_Eliminar", Editor);

    EXPECT_THAT(Log.Calls(), ElementsAre("editor.DeleteSel"));
}

TEST_F(DeleteCommand, DoesNothingWithAnEmptySelection) {
    Editor.Selection = {{{2}, {1}}, {{2}, {1}}};

    RunCommand("mnuEdición_Eliminar", Editor);

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

struct Numbered : TestRow {
    const char *Item;
    int Number;
};

class NumberedCommand : public testing::TestWithParam<Numbered> {};

TEST_P(NumberedCommand, IsHandedToTheEditorByItsNumber) {
    CallLog log;
    FakeDisk disk;
    FakeEditor editor(log, disk);
    editor.Possible = false; // a numbered command asks nothing beforehand

    RunCommand(GetParam().Item, editor);

    EXPECT_THAT(log.Calls(),
                ElementsAre("editor.ExecuteCommand " + std::to_string(GetParam().Number)));
}

INSTANTIATE_TEST_SUITE_P(
    EditMenu, NumberedCommand,
    testing::Values(Numbered{"SeleccionarTodo", "mnuEdicion_SeleccionarTodo", 137},
                    Numbered{"BuscarReemplazar", "mnuEdicion_BuscarReemplazar", 169},
                    Numbered{"BuscarSiguiente", "mnuEdicion_BuscarSiguiente", 176},
                    Numbered{"BuscarAnterior", "mnuEdicion_BuscarAnterior", 304},
                    Numbered{"InsertarEliminarBookmark", "mnuEdicion_InsertarEliminarBookmark",
                             204},
                    Numbered{"BookmarkAnterior", "mnuEdicion_BookmarkAnterior", 205},
                    Numbered{"BookmarkSiguiente", "mnuEdicion_BookmarkSiguiente", 206},
                    Numbered{"EliminarTodosBookmarks", "mnuEdicion_EliminarTodosBookmarks", 207},
                    Numbered{"PrimerBookmark", "mnuEdicion_PrimerBookmark", 208},
                    Numbered{"UltimoBookmark", "mnuEdicion_UltimoBookmark", 209},
                    Numbered{"IrALinea", "mnuEdicion_IrALinea", 301},
                    Numbered{"IrACorchete", "mnuEdicion_IrACorchete", 302},
                    Numbered{"SeleccionarSiguiente", "mnuEdicion_SeleccionarSiguiente", 303}),
    RowName);

} // namespace
} // namespace Quillbox
