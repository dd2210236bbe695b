// SPDX-License-Identifier: GPL-3.0-or-later
#include "FindFixture.h"

#include "fakes/Waiting.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

namespace Quillbox {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(FindAndReplace, MarksAllMatchesWhileItIsOpen) {
    LoadCode("uno dos Uno\nuno");
    Look("uno");
    EXPECT_THAT(Marked(), ElementsAre("uno", "Uno", "uno"));
    Tick("chkMayusculas");
    EXPECT_THAT(Marked(), ElementsAre("uno", "uno"));
    Find.Dialog->close();
    EXPECT_THAT(Marked(), IsEmpty());
}

TEST_F(FindAndReplace, MarksWhatIsInViewOnly) {
    LoadCode(QByteArray("uno\n").repeated(5000));
    Look("uno");
    EXPECT_LT(Marked().size(), 200U);
    Code().SetTopIndex({4000});
    Paint();
    const ScintillaText text(Code());
    EXPECT_NE(text.Send(QsciScintillaBase::SCI_INDICATORVALUEAT, Indicator::Match,
                        text.LineStart({4002})),
              0);
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_INDICATORVALUEAT, Indicator::Match, 0), 0);
}

TEST_F(FindAndReplace, MarksFollowEdits) {
    LoadCode("uno dos");
    Look("uno");
    Code().InsertText("uno ", At(0, 0));
    Paint();
    EXPECT_THAT(Marked(), ElementsAre("uno", "uno"));
    Code().InsertText("x", At(0, 1));
    Paint();
    EXPECT_THAT(Marked(), ElementsAre("uno"));
    Code().Undo();
    Paint();
    EXPECT_THAT(Marked(), ElementsAre("uno", "uno"));
}

TEST_F(FindAndReplace, MarksNoMoreThanOnceWhatIsMarkedAlready) {
    LoadCode("uno dos" + QByteArray("\n").repeated(300));
    Look("uno");
    Paint();
    ScintillaText(Code()).Send(QsciScintillaBase::SCI_SETMODEVENTMASK,
                               QsciScintillaBase::SC_MOD_CHANGEINDICATOR);
    QSignalSpy marks(&Code(), &QsciScintillaBase::SCN_MODIFIED);
    QSignalSpy updates(&Code(), &QsciScintillaBase::SCN_UPDATEUI);
    Code().SetTopIndex({3});
    Paint();
    EXPECT_GT(updates.count(), 0);
    EXPECT_EQ(marks.count(), 0) << "each mark asks for another";
}

TEST_F(FindAndReplace, MarksThePartOfAVeryLongLineThatIsInView) {
    LoadCode(QByteArray("uno ").repeated(200'000));
    Look("uno");
    const std::size_t marked = Marked().size();
    EXPECT_GT(marked, 100U);
    EXPECT_LT(marked, 100'000U);
}

TEST_F(FindAndReplace, MarksNoMatchOfAnExpressionInAVeryLongLine) {
    LoadCode("uno\n" + QByteArray("uno ").repeated(200'000));
    LookForExpression("un[o]");
    EXPECT_THAT(Marked(), ElementsAre("uno"));
}

TEST_F(FindAndReplace, MarksNoPartOfAWordAtItsLimits) {
    LoadCode("unouno uno");
    SelectCode(At(0, 3), At(0, 9));
    Look("uno");
    Child<QCheckBox>("chkSeleccion").click();
    EXPECT_THAT(Marked(), ElementsAre("uno"));
    Tick("chkPalabraCompleta");
    EXPECT_THAT(Marked(), IsEmpty());
    SelectCode(At(0, 0), At(0, 3));
    Child<QCheckBox>("chkSeleccion").click();
    Child<QCheckBox>("chkSeleccion").click();
    EXPECT_THAT(Marked(), IsEmpty());
}

TEST_F(FindAndReplace, MarksInAnotherTextWhatWasTooCostlyInTheOneBefore) {
    LoadCode("aaa\n" + QByteArray(60, 'a') + "!");
    LookForExpression("(a+)+$");
    const std::size_t before = Marked().size();
    LoadCode("aaa\nb\naaaa");
    EXPECT_EQ(before, 1U);
    EXPECT_THAT(Marked(), ElementsAre("aaa", "aaaa"));
}

TEST_F(FindAndReplace, MarksAreNoChangeOfTheText) {
    LoadCode("uno dos");
    QSignalSpy changes(&Code(), &ScintillaEditor::TextChanged);
    Look("uno");
    Find.Dialog->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 0);
    EXPECT_FALSE(Code().IsModified());
    EXPECT_FALSE(Code().CanUndo());
}

TEST_F(FindAndReplace, MarksGoAlongToTheEditorWithTheKeyboard) {
    LoadCode("uno");
    Look("uno");
    const auto other = EditorWithKeyboard("x uno");
    EXPECT_THAT(Marked(), IsEmpty());
    const ScintillaText text(*other);
    EXPECT_NE(text.Send(QsciScintillaBase::SCI_INDICATORVALUEAT, Indicator::Match, 2), 0);
}

TEST_F(FindAndReplace, MarksDoNotOutliveTheEditorThatGivesItsTextAway) {
    LoadCode("uno");
    Look("uno");
    const auto other = NewEditor();
    other->TakeContentsFrom(Code());
    EXPECT_THAT(Marked(), IsEmpty());
}

TEST_F(FindAndReplace, TellsTheNumberOfMatches) {
    LoadCode("uno dos uno");
    Look("uno");
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "2 coincidencias"; }))
        << CountShown().toStdString();
    Click("cmdSiguiente");
    Click("cmdSiguiente");
    Paint();
    EXPECT_EQ(CountShown(), "2 de 2");
    Child<QLineEdit>("txtBuscar").setText("dos");
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "1 coincidencia"; }));
    Child<QLineEdit>("txtBuscar").setText("cuatro");
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "Sin coincidencias"; }));
    Child<QLineEdit>("txtBuscar").setText("");
    EXPECT_EQ(CountShown(), "");
}

TEST_F(FindAndReplace, CountsAgainWhenTheTextChanges) {
    LoadCode("uno dos uno");
    Look("uno");
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "2 coincidencias"; }));
    Code().InsertText("uno\n", At(0, 0));
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "3 coincidencias"; }))
        << CountShown().toStdString();
}

TEST_F(FindAndReplace, CountsEveryMatchOfALongText) {
    LoadCode(QByteArray("uno dos uno\r\n").repeated(100'000));
    Look("uno");
    EXPECT_TRUE(WaitFor([&] { return CountShown() == "200.000 coincidencias"; }))
        << CountShown().toStdString();
}

} // namespace Quillbox
