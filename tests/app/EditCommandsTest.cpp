// SPDX-License-Identifier: GPL-3.0-or-later
#include "RulesProgram.h"
#include "app/Commands.h"
#include "editor/LineCommands.h"
#include "fakes/TestRow.h"

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

class WindowWithChoosyEditor : public FakeDocumentWindow {
  public:
    WindowWithChoosyEditor(CallLog &log, FakeDisk &disk)
        : FakeDocumentWindow(log, disk)
        , Choosy(log, disk) {}

    ChoosyEditor Choosy;
    EditorControl &Editor() override { return Choosy; }
};

/// The Edit menu over one document, the current one.
class EditMenu : public RulesProgram {
  protected:
    EditMenu() {
        On.Registry.Documents[1].Window = &Window;
        On.Registry.DocumentCount = 1;
        On.Registry.CurrentIndex = 1;
    }

    void RunCommand(const std::string &name) {
        const auto found = std::ranges::find(
            Commands(), name, [](const Command &command) { return std::string(command.Name); });
        ASSERT_NE(found, Commands().end()) << name;
        found->Run(On);
    }

    WindowWithChoosyEditor Window{Log, Disk};
    ChoosyEditor &Editor = Window.Choosy;
};

struct Operation : TestRow {
    const char *Item;
};

const std::set<std::string> AllOperations = {"Undo", "Redo", "Cut", "Copy", "Paste"};

class ClipboardAndUndoCommand : public EditMenu, public testing::WithParamInterface<Operation> {};

TEST_P(ClipboardAndUndoCommand, RunsWhenTheEditorSaysThatItCan) {
    Editor.Allowed = {GetParam().Name};

    RunCommand(GetParam().Item);

    EXPECT_THAT(Log.Calls(), ElementsAre(std::string("editor.") + GetParam().Name));
}

TEST_P(ClipboardAndUndoCommand, DoesNothingWhenTheEditorSaysThatItCannot) {
    Editor.Allowed = AllOperations;
    Editor.Allowed.erase(GetParam().Name);

    RunCommand(GetParam().Item);

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EditMenu, ClipboardAndUndoCommand,
                         testing::Values(Operation{"Undo", "mnuEdicion_Deshacer"},
                                         Operation{"Redo", "mnuEdicion_Rehacer"},
                                         Operation{"Cut", "mnuEdicion_Cortar"},
                                         Operation{"Copy", "mnuEdicion_Copiar"},
                                         Operation{"Paste", "mnuEdicion_Pegar"}),
                         RowName);

class DeleteCommand : public EditMenu {};

TEST_F(DeleteCommand, RemovesTheSelection) {
    Editor.Selection = {{{2}, {0}}, {{2}, {1}}};

    RunCommand("mnuEdición_Eliminar");

    EXPECT_THAT(Log.Calls(), ElementsAre("editor.DeleteSel"));
}

TEST_F(DeleteCommand, DoesNothingWithAnEmptySelection) {
    Editor.Selection = {{{2}, {1}}, {{2}, {1}}};

    RunCommand("mnuEdición_Eliminar");

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

struct Numbered : TestRow {
    const char *Item;
    int Number;
};

class NumberedCommand : public EditMenu, public testing::WithParamInterface<Numbered> {};

TEST_P(NumberedCommand, IsHandedToTheEditorByItsNumber) {
    Editor.Possible = false; // a numbered command asks nothing beforehand

    RunCommand(GetParam().Item);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.ExecuteCommand " + NameOf(EditorCommand{GetParam().Number})));
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

class LineCommandOfTheEditMenu : public EditMenu {
  protected:
    std::vector<std::string> CallsOf(const std::function<void()> &command) {
        Editor.Content = "\tx\ny";
        Editor.Selection = {{{0}, {0}}, {{1}, {1}}};
        Log.Clear();
        command();
        return Log.Calls();
    }
};

TEST_F(LineCommandOfTheEditMenu, IndentsAndOutdents) {
    const auto indenting = CallsOf([this] { IndentLines(Editor); });
    const auto outdenting = CallsOf([this] { OutdentLines(Editor); });
    ASSERT_NE(indenting, outdenting);
    EXPECT_EQ(CallsOf([this] { RunCommand("mnuEdicion_DesplazarDerecha"); }), indenting);
    EXPECT_EQ(CallsOf([this] { RunCommand("mnuEdicion_DesplazarIzquierda"); }), outdenting);
}

} // namespace
} // namespace Quillbox
