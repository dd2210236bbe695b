// SPDX-License-Identifier: GPL-3.0-or-later
#include "FindFixture.h"

#include "fakes/Waiting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHideEvent>
#include <QSet>

namespace Quillbox {

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

TEST_F(FindAndReplace, WorksOnTheEditorThatHadTheKeyboardLast) {
    LoadCode("uno");
    Look("uno");
    const auto other = EditorWithKeyboard("x uno");
    Click("cmdSiguiente");
    EXPECT_EQ(other->GetSel(), Range(At(0, 2), At(0, 5)));
}

TEST_F(FindAndReplace, SaysWhenItsEditorIsGone) {
    Look("uno");
    delete Window.takeCentralWidget();
    Click("cmdSiguiente");
    EXPECT_EQ(Result(), "No hay ningún documento a la vista.");
}

TEST_F(FindAndReplace, ShowsNeitherNumberNorLimitOfAnEditorThatIsGone) {
    LoadCode("uno\nuno");
    SelectCode(At(0, 0), At(1, 1));
    Look("uno");
    ASSERT_TRUE(WaitFor([&] { return CountShown() == "1 de 1"; }));
    delete Window.takeCentralWidget();
    EXPECT_EQ(CountShown(), "");
    EXPECT_FALSE(Child<QCheckBox>("chkSeleccion").isChecked());
}

TEST_F(FindAndReplace, KeepsLimitAndMarksWhileItIsMinimised) {
    LoadCode("uno\nuno");
    SelectCode(At(0, 0), At(1, 1));
    Look("uno");
    QHideEvent minimised;
    QSpontaneKeyEvent::setSpontaneous(&minimised);
    qApp->notify(Find.Dialog, &minimised); // sending it would make it the program's own
    EXPECT_TRUE(Child<QCheckBox>("chkSeleccion").isChecked());
    EXPECT_EQ(Marked(), std::vector<std::string>{"uno"});
}

TEST_F(FindAndReplace, LeavesADocumentAloneThatNobodySees) {
    LoadCode("uno");
    Look("uno");
    Code().hide();
    Click("cmdReemplazarTodo");
    EXPECT_EQ(Result(), "No hay ningún documento a la vista.");
    EXPECT_FALSE(Code().IsModified());
}

TEST_F(FindAndReplace, HasAMnemonicForEveryFieldAndButtonAndNoneTwice) {
    FindDialog &dialog = Open();
    QString letters;
    const auto add = [&](const QString &caption) {
        letters += caption[caption.indexOf('&') + 1].toLower();
        EXPECT_EQ(caption.count('&'), 1) << caption.toStdString();
    };
    for (const auto *button : dialog.findChildren<QAbstractButton *>())
        add(button->text());
    for (const auto *label : dialog.findChildren<QLabel *>())
        if (label->buddy() != nullptr)
            add(label->text());
    EXPECT_EQ(letters.size(), 12);
    EXPECT_EQ(QSet<QChar>(letters.begin(), letters.end()).size(), letters.size())
        << letters.toStdString();
}

TEST_F(FindAndReplace, GoesThroughItsFieldsFromTopToBottom) {
    FindDialog &dialog = Open();
    dialog.activateWindow();
    Child<QLineEdit>("txtBuscar").setText("uno");
    const QStringList expected{"cmbReemplazar",     "chkMayusculas", "chkPalabraCompleta",
                               "chkExpresion",      "chkSeleccion",  "chkVuelta",
                               "cmdSiguiente",      "cmdAnterior",   "cmdReemplazar",
                               "cmdReemplazarTodo", "cmdCerrar",     "cmbBuscar"};
    QStringList seen;
    const QWidget *at = &Child<QComboBox>("cmbBuscar");
    do {
        at = at->nextInFocusChain();
        if ((at->focusPolicy() & Qt::TabFocus) != 0 && expected.contains(at->objectName()))
            seen += at->objectName();
    } while (at != &Child<QComboBox>("cmbBuscar"));
    EXPECT_EQ(seen, expected);
}

TEST_F(FindAndReplace, FindsWithEnterAndBackWithShift) {
    LoadCode("uno dos uno");
    Look("uno");
    QApplication::setActiveWindow(Find.Dialog);
    auto &field = Child<QLineEdit>("txtBuscar");
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
    QTest::keyClick(&field, Qt::Key_F3);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 8), At(0, 11)));
    QTest::keyClick(&field, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Code().GetSel(), Range(At(0, 0), At(0, 3)));
}

TEST_F(FindAndReplace, KeepsTheKeyboardInTheFieldWhenAButtonIsClicked) {
    LoadCode("uno");
    Look("uno");
    QApplication::setActiveWindow(Find.Dialog);
    Child<QLineEdit>("txtBuscar").setFocus();
    QTest::mouseClick(&Child<QPushButton>("cmdAnterior"), Qt::LeftButton);
    EXPECT_EQ(Find.Dialog->focusWidget(), &Child<QComboBox>("cmbBuscar"));
}

TEST_F(FindAndReplace, RemembersWhatWasLookedForAndPutIn) {
    LoadCode("uno dos");
    for (const char *term : {"uno", "dos", "uno"}) {
        Look(term);
        Click("cmdSiguiente");
    }
    ReplaceBy("tres");
    Click("cmdReemplazarTodo");
    const auto &terms = Child<QComboBox>("cmbBuscar");
    ASSERT_EQ(terms.count(), 2);
    EXPECT_EQ(terms.itemText(0), "uno");
    EXPECT_EQ(terms.itemText(1), "dos");
    EXPECT_EQ(terms.currentText(), "uno");
    ASSERT_EQ(Child<QComboBox>("cmbReemplazar").count(), 1);
    EXPECT_EQ(Child<QComboBox>("cmbReemplazar").itemText(0), "tres");
}

TEST_F(FindAndReplace, OpensTheListWithTheDownKey) {
    LoadCode("uno");
    Look("uno");
    Click("cmdSiguiente");
    auto &terms = Child<QComboBox>("cmbBuscar");
    QTest::keyClick(&terms, Qt::Key_Down);
    EXPECT_TRUE(terms.view()->isVisible());
    terms.hidePopup();
}

TEST_F(FindAndReplace, CompletesNothingThatIsTyped) {
    LoadCode("enemigos");
    Look("enemigos");
    Click("cmdSiguiente");
    auto &field = Child<QLineEdit>("txtBuscar");
    field.clear();
    QTest::keyClicks(&field, "ene");
    EXPECT_EQ(field.text(), "ene");
}

TEST_F(FindAndReplace, KeepsATermForFindNextOnlyWhenItWasLookedFor) {
    LoadCode("uno dos");
    Find.Request.Term = "uno";
    SelectCode(At(0, 4), At(0, 7));
    Open().close();
    EXPECT_EQ(Find.Request.Term, "uno");
}

TEST_F(FindAndReplace, StaysOffTheMatch) {
    LoadCode(QByteArray("x\n").repeated(3) + "uno");
    Look("uno");
    const QPoint match = Code().viewport()->mapToGlobal(QPoint(20, 50));
    Find.Dialog->move(match - QPoint(50, 50));
    Click("cmdSiguiente");
    const ScintillaText text(Code());
    const BytePosition start = text.SelectionStart();
    const QPoint found = Code().viewport()->mapToGlobal(
        QPoint(static_cast<int>(text.Send(QsciScintillaBase::SCI_POINTXFROMPOSITION, 0, start)),
               static_cast<int>(text.Send(QsciScintillaBase::SCI_POINTYFROMPOSITION, 0, start))));
    EXPECT_FALSE(Find.Dialog->frameGeometry().contains(found));
}

} // namespace Quillbox
