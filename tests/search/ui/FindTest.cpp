// SPDX-License-Identifier: GPL-3.0-or-later
#include "FindFixture.h"

namespace Quillbox {

namespace {

/// What the editor tells by itself while the dialog is closed.
QString NoticeIn(const ScintillaEditor &editor) {
    const auto *notice = editor.findChild<QLabel *>("lblAvisoBuscar");
    return notice == nullptr ? QString() : notice->text();
}

} // namespace

TEST_F(FindAndReplace, FindsForwardAndAroundTheEnd) {
    LoadCode("Uno dos uno");
    Look("uno");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
}

TEST_F(FindAndReplace, FindsBackwardAndAroundTheStart) {
    LoadCode("uno dos uno");
    Look("uno");
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
}

TEST_F(FindAndReplace, TellsCasesApartWhenAsked) {
    LoadCode("UNO A\xD1O uno a\xF1o");
    Look("año");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 4), At(0, 7)));
    Code().SetCaretPos(At(0, 0));
    Tick("chkMayusculas");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 12), At(0, 15)));
}

TEST_F(FindAndReplace, FindsNothingWithinACharacter) {
    LoadCode("\xF1\x80");
    for (const char *term : {"±", "Ã", "‚"}) {
        Look(QString::fromUtf8(term));
        Click("cmdSiguiente");
        EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 0))) << term;
    }
    Look(QString::fromUtf8("€"));
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 1), At(0, 2)));
}

TEST_F(FindAndReplace, FindsWholeWordsWhenAsked) {
    LoadCode("unos uno");
    Look("uno");
    Tick("chkPalabraCompleta");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 5), At(0, 8)));
}

TEST_F(FindAndReplace, SaysWhenThereIsNothing) {
    LoadCode("uno");
    Code().SetCaretPos(At(0, 2));
    Look("cuatro");
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "No se encuentra «cuatro».");
    EXPECT_EQ(Code().GetSel().End, At(0, 2));
}

TEST_F(FindAndReplace, FindsNextWithoutTheDialog) {
    LoadCode("uno dos uno");
    Find.Request.Term = "uno";
    Code().ExecuteCommand(EditorCommand::FindNext);
    Code().ExecuteCommand(EditorCommand::FindNext);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    EXPECT_FALSE(Find.Dialog);
}

TEST_F(FindAndReplace, OpensWhenFindNextHasNothingToLookFor) {
    LoadCode("uno");
    Code().ExecuteCommand(EditorCommand::FindNext);
    ASSERT_TRUE(Find.Dialog);
    EXPECT_TRUE(Find.Dialog->isVisible());
}

TEST_F(FindAndReplace, TellsInTheEditorWhenFindNextFindsNothing) {
    LoadCode("uno");
    Find.Request.Term = "cuatro";
    Code().ExecuteCommand(EditorCommand::FindNext);
    EXPECT_FALSE(Find.Dialog);
    EXPECT_EQ(NoticeIn(Code()), "No se encuentra «cuatro».");
}

TEST_F(FindAndReplace, TellsWhenItWentAroundTheEnd) {
    LoadCode("uno dos uno");
    Look("uno");
    Click("cmdSiguiente");
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "");
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "Se llegó al final; se sigue desde el principio.");
    Click("cmdAnterior");
    EXPECT_EQ(Result(), "Se llegó al principio; se sigue desde el final.");
    Click("cmdAnterior");
    EXPECT_EQ(Result(), "");
}

TEST_F(FindAndReplace, StopsAtTheEndWhenAsked) {
    LoadCode("uno dos uno");
    Look("uno");
    EXPECT_TRUE(Child<QCheckBox>("chkVuelta").isChecked());
    Child<QCheckBox>("chkVuelta").setChecked(false);
    Click("cmdSiguiente");
    Click("cmdSiguiente");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    EXPECT_EQ(Result(), "No hay más coincidencias hasta el final.");
    Click("cmdAnterior");
    Click("cmdAnterior");
    EXPECT_EQ(Result(), "No hay más coincidencias hasta el principio.");
}

TEST_F(FindAndReplace, FindsExpressions) {
    LoadCode("vida=10\r\na\xF1o=2\r\n");
    LookForExpression("\\w+=\\d$");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 5)));
}

TEST_F(FindAndReplace, FindsExpressionsBackward) {
    LoadCode("x1 x22\nx333");
    LookForExpression("x\\d+");
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 4)));
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 3), At(0, 6)));
}

TEST_F(FindAndReplace, GoesFromEmptyMatchToEmptyMatch) {
    LoadCode("a\nb\nc");
    LookForExpression("^");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 0)));
    EXPECT_EQ(Result(), "La coincidencia no tiene texto.");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 0)));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 0)));
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 0), At(2, 0)));
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 0), At(1, 0)));
}

TEST_F(FindAndReplace, TellsAMistakeInAnExpressionWhileItIsTyped) {
    LoadCode("uno");
    LookForExpression("(uno");
    EXPECT_EQ(Result(), "Expresión no válida: falta un paréntesis de cierre (posición 5).");
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "Expresión no válida: falta un paréntesis de cierre (posición 5).");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "Expresión no válida: falta un paréntesis de cierre (posición 5).");
    Child<QLineEdit>("txtBuscar").setText("(uno)");
    EXPECT_EQ(Result(), "");
}

TEST_F(FindAndReplace, EndsAnExpressionThatTakesForever) {
    LoadCode(QByteArray(60, 'a') + '!');
    LookForExpression("(a+)+$");
    for (const char *button :
         {"cmdSiguiente", "cmdAnterior", "cmdReemplazar", "cmdReemplazarTodo"}) {
        Child<QLabel>("lblResultado").clear();
        Click(button);
        EXPECT_EQ(Result(), "La expresión es demasiado costosa para este texto.") << button;
    }
    EXPECT_FALSE(Code().IsModified());
}

TEST_F(FindAndReplace, FindsAroundThePlaceOfTheLastEdit) {
    LoadCode("uno dos\nuno dos\nuno dos");
    Code().SetCaretPos(At(1, 5));
    Code().ReplaceSel("X");
    Look("dos");
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(2, 4), At(2, 7)));
    Click("cmdSiguiente");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 4), At(0, 7)));
    Child<QLineEdit>("txtBuscar").setText("dXos");
    Click("cmdAnterior");
    EXPECT_EQ(Code().GetSel(), Range(At(1, 4), At(1, 8)));
}

TEST_F(FindAndReplace, ShowsAMatchFarAwayInTheMiddle) {
    LoadCode(QByteArray("x\n").repeated(500) + "uno\n" + QByteArray("x\n").repeated(500));
    Look("uno");
    Click("cmdSiguiente");
    const ScintillaText text(Code());
    const auto top = text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
    const auto shown = text.Send(QsciScintillaBase::SCI_LINESONSCREEN);
    EXPECT_GT(500, top + shown / 4);
    EXPECT_LT(500, top + 3 * shown / 4);
}

TEST_F(FindAndReplace, FindsThePreviousOneWithoutTheDialog) {
    LoadCode("uno dos uno");
    Find.Request.Term = "uno";
    Code().ExecuteCommand(EditorCommand::FindPrevious);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    EXPECT_EQ(NoticeIn(Code()), "Se llegó al principio; se sigue desde el final.");
    Code().ExecuteCommand(EditorCommand::FindPrevious);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
    EXPECT_EQ(NoticeIn(Code()), "");
    EXPECT_FALSE(Find.Dialog);
}

TEST_F(FindAndReplace, TellsInTheOpenDialogWhenFindNextFindsNothing) {
    LoadCode("uno");
    Look("cuatro");
    Click("cmdSiguiente");
    Child<QLineEdit>("txtBuscar").setText("cinco");
    Code().ExecuteCommand(EditorCommand::FindNext);
    EXPECT_EQ(Result(), "No se encuentra «cuatro».");
    EXPECT_EQ(NoticeIn(Code()), "");
}

} // namespace Quillbox
