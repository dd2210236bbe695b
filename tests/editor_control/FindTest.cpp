// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace Quillbox::Test {

namespace {

class FindAndReplace : public EditorTest {
  protected:
    FindAndReplace() {
        Window.setCentralWidget(Editor.release());
        Window.show();
    }

    ScintillaEditor &Code() const {
        return *static_cast<ScintillaEditor *>(Window.centralWidget());
    }

    void LoadCode(const QByteArray &bytes) {
        ASSERT_TRUE(Code().OpenFile(Write(QStringLiteral("texto.bb"), bytes)));
    }

    FindDialog &Open() {
        Code().ExecuteCommand(EditorCommand::FindAndReplace);
        return *Find.Dialog;
    }

    template <class Widget>
    Widget &Child(const char *name) const {
        return *Find.Dialog->findChild<Widget *>(QLatin1String(name));
    }

    void Look(const QString &term) {
        Open();
        Child<QLineEdit>("txtBuscar").setText(term);
    }

    void Click(const char *button) { Child<QPushButton>(button).click(); }
    QString Result() const { return Child<QLabel>("lblResultado").text(); }

    void SelectCode(TextPosition start, TextPosition end) {
        const ScintillaText text(Code());
        text.Send(QsciScintillaBase::SCI_SETSEL, text.PositionOf(start), text.PositionOf(end));
    }

    QMainWindow Window;
};

TextRange Range(TextPosition start, TextPosition end) { return {start, end}; }

} // namespace

TEST_F(FindAndReplace, OpensOneDialogInTheEditorsWindow) {
    FindDialog &dialog = Open();
    EXPECT_EQ(dialog.objectName(), "frmBuscarReemplazar");
    EXPECT_EQ(dialog.parentWidget(), &Window);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ(&Open(), &dialog);
}

TEST_F(FindAndReplace, ProposesTheSelectedWord) {
    LoadCode("uno dos\ntres");
    SelectCode(At(0, 4), At(0, 7));
    Open();
    EXPECT_EQ(Child<QLineEdit>("txtBuscar").text(), "dos");
    SelectCode(At(0, 0), At(1, 2));
    Open();
    EXPECT_EQ(Child<QLineEdit>("txtBuscar").text(), "");
}

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
    Child<QCheckBox>("chkMayusculas").setChecked(true);
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
    Child<QCheckBox>("chkPalabraCompleta").setChecked(true);
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

TEST_F(FindAndReplace, ReplacesTheMatchAndGoesToTheNext) {
    LoadCode("uno dos uno");
    Look("uno");
    Child<QLineEdit>("txtReemplazar").setText("tres");
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "uno dos uno");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "tres dos uno");
    EXPECT_EQ(Code().GetSel(), Range(At(0, 9), At(0, 12)));
    Click("cmdReemplazar");
    EXPECT_EQ(Code().Text(), "tres dos tres");
    EXPECT_EQ(Result(), "No quedan más apariciones.");
    Code().Undo();
    EXPECT_EQ(Code().Text(), "tres dos uno");
}

TEST_F(FindAndReplace, ReplacesAllInOneUndoStepAndCounts) {
    LoadCode("uno dos uno\nuno");
    Look("uno");
    Child<QLineEdit>("txtReemplazar").setText("uno uno");
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno uno dos uno uno\nuno uno");
    EXPECT_EQ(Result(), "Se han reemplazado 3 apariciones.");
    Code().Undo();
    EXPECT_EQ(Code().Text(), "uno dos uno\nuno");
    Look("dos");
    Child<QLineEdit>("txtReemplazar").clear();
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "uno  uno\nuno");
    EXPECT_EQ(Result(), "Se ha reemplazado 1 aparición.");
}

TEST_F(FindAndReplace, ReplacesWithCharactersThatFilesCanKeep) {
    LoadCode("uno");
    Look("uno");
    Child<QLineEdit>("txtReemplazar").setText(QString::fromUtf8("ñЖ"));
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Code().Text(), "ñ?");
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

TEST_F(FindAndReplace, OpensWhenFindNextFindsNothing) {
    LoadCode("uno");
    Find.Request.Term = "cuatro";
    Code().ExecuteCommand(EditorCommand::FindNext);
    ASSERT_TRUE(Find.Dialog);
    EXPECT_EQ(Result(), "No se encuentra «cuatro».");
}

TEST_F(FindAndReplace, WorksOnTheEditorThatHadTheKeyboardLast) {
    LoadCode("uno");
    Look("uno");
    const auto other = NewEditor();
    other->show();
    ASSERT_TRUE(other->OpenFile(Write("b.bb", "x uno")));
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(other.get(), &focus);
    Click("cmdSiguiente");
    EXPECT_EQ(other->GetSel(), Range(At(0, 2), At(0, 5)));
}

TEST_F(FindAndReplace, SaysWhenItsEditorIsGone) {
    Look("uno");
    delete Window.takeCentralWidget();
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "No hay ningún documento a la vista.");
}

TEST_F(FindAndReplace, LeavesADocumentAloneThatNobodySees) {
    LoadCode("uno");
    Look("uno");
    Code().hide();
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "No hay ningún documento a la vista.");
    EXPECT_FALSE(Code().IsModified());
}

TEST_F(FindAndReplace, NeedsATermForItsButtons) {
    Look("");
    EXPECT_FALSE(Child<QPushButton>("cmdSiguiente").isEnabled());
    EXPECT_TRUE(Child<QPushButton>("cmdCerrar").isEnabled());
    Child<QLineEdit>("txtBuscar").setText("u");
    EXPECT_TRUE(Child<QPushButton>("cmdReemplazarTodo").isEnabled());
}

TEST_F(FindAndReplace, ClosesWithEscape) {
    FindDialog &dialog = Open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FindAndReplace, TellsTheEditorsListenersWhatItReplaced) {
    LoadCode("uno");
    QSignalSpy changes(&Code(), &ScintillaEditor::TextChanged);
    Look("uno");
    Child<QLineEdit>("txtReemplazar").setText("x");
    Click("cmdReemplazarTodo");
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 1);
}

} // namespace Quillbox::Test
