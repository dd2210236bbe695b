// SPDX-License-Identifier: GPL-3.0-or-later
#include "FindFixture.h"

#include <gmock/gmock.h>

namespace Quillbox {

using testing::ElementsAre;

TEST_F(FindAndReplace, LimitsItselfToSeveralSelectedLines) {
    LoadCode("uno\nuno uno\nuno\nuno");
    SelectCode(At(1, 0), At(3, 0));
    Look("uno");
    EXPECT_TRUE(Child<QCheckBox>("chkSeleccion").isChecked());
    EXPECT_THAT(Marked(), ElementsAre("uno", "uno", "uno"));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 3)));
    Click("cmdSiguiente");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 3)));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 3)));
    EXPECT_EQ(Result(), "Se llegó al final; se sigue desde el principio.");
}

TEST_F(FindAndReplace, BeginsAtTheEndOfTheSelectionWhenItGoesBackward) {
    LoadCode("uno\nuno uno\nuno");
    SelectCode(At(0, 1), At(1, 5));
    Look("uno");
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 3)));
    EXPECT_EQ(Result(), "");
}

TEST_F(FindAndReplace, ReplacesInTheSelectionThatWasThereWhenAsked) {
    LoadCode("uno uno\nuno uno");
    SelectCode(At(0, 4), At(1, 3));
    Look("uno");
    SelectCode(At(0, 0), At(0, 0));
    ReplaceBy("cuatro");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno cuatro\ncuatro uno");
    ReplaceBy("x");
    Child<QLineEdit>("txtBuscar").setText("cuatro");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno x\nx uno");
    Child<QLineEdit>("txtBuscar").setText("uno");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "No se encuentra «uno» en la selección.");
}

TEST_F(FindAndReplace, TakesTheSelectionOfTheMomentTheBoxIsTicked) {
    LoadCode("uno uno uno");
    Look("uno");
    SelectCode(At(0, 4), At(0, 7));
    Child<QCheckBox>("chkSeleccion").click();
    ReplaceBy("x");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno x uno");
    Child<QCheckBox>("chkSeleccion").click();
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "x x x");
}

TEST_F(FindAndReplace, NeedsASelectionToBeLimitedToIt) {
    LoadCode("uno");
    Look("uno");
    Child<QCheckBox>("chkSeleccion").click();
    EXPECT_FALSE(Child<QCheckBox>("chkSeleccion").isChecked());
    EXPECT_EQ(Result(), "No hay texto seleccionado.");
}

TEST_F(FindAndReplace, MovesItsLimitsWithEdits) {
    LoadCode("uno\nuno\nuno");
    SelectCode(At(1, 0), At(1, 3));
    Look("uno");
    Child<QCheckBox>("chkSeleccion").click();
    Code().InsertText("dos dos\n", At(0, 0));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 3)));
}

TEST_F(FindAndReplace, LosesItsLimitsWithTheText) {
    LoadCode("uno\nuno");
    SelectCode(At(0, 0), At(1, 1));
    Look("uno");
    LoadCode("uno");
    EXPECT_FALSE(Child<QCheckBox>("chkSeleccion").isChecked());
    EXPECT_THAT(Marked(), ElementsAre("uno"));
}

TEST_F(FindAndReplace, FindsInTheWholeTextOnceItIsClosed) {
    LoadCode("uno\nuno\nuno");
    SelectCode(At(0, 0), At(1, 1));
    Look("uno");
    Click("cmdSiguiente");
    Find.Dialog->close();
    Code().ExecuteCommand(EditorCommand::FindNext);
    Code().ExecuteCommand(EditorCommand::FindNext);
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 3)));
    SelectCode(At(0, 0), At(0, 0));
    Open();
    EXPECT_FALSE(Child<QCheckBox>("chkSeleccion").isChecked());
}

} // namespace Quillbox
