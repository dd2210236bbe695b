// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/CompletionPopup.h"

#include "fakes/Waiting.h"

#include <QAccessible>
#include <QLabel>
#include <QListView>
#include <QScreen>
#include <QTest>

namespace Quillbox {

namespace {

class Completing : public EditorKeys {
  protected:
    Completing() {
        Editor->show();
        Editor->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Editor.get(), PatienceMilliseconds));
        Editor->setFocus();
    }

    /// Asks for a completion where the text ends.
    void CompleteBehind(const QString &text) {
        Editor->ReplaceSel(text);
        Editor->CompleteWord(Words);
    }

    CompletionPopup *Popup() const {
        auto *popup = Editor->findChild<CompletionPopup *>();
        return popup != nullptr && popup->isVisible() ? popup : nullptr;
    }
    QListView &List() const { return *Popup()->findChild<QListView *>(); }
    QStringList Shown() const {
        QStringList words;
        for (int row = 0; Popup() != nullptr && row < List().model()->rowCount(); ++row)
            words += List().model()->index(row, 0).data().toString();
        return words;
    }
    QString Current() const { return Popup()->CurrentWord().Word; }
    QString Help() const { return Popup()->findChild<QLabel *>()->text(); }

    const Completions Words = {{"Ancho", "Ancho( imagen )"},
                               {"Print", "Print texto"},
                               {"PrintImage", "PrintImage imagen"},
                               {"Printer", ""},
                               {"Rnd", "Rnd( a, b )"}};
};

} // namespace

TEST_F(Completing, InsertsTheOnlyMatchAtOnceWithItsSpelling) {
    CompleteBehind("x = rn");
    EXPECT_EQ(Editor->Text(), "x = Rnd");
    EXPECT_EQ(Caret(), At(0, 7));
    EXPECT_EQ(Popup(), nullptr);
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "x = rn");
}

TEST_F(Completing, LeavesAWordAloneThatIsWhole) {
    Load("Rnd");
    Editor->SetCaretPos(At(0, 3));
    Editor->CompleteWord(Words);
    EXPECT_EQ(Editor->Text(), "Rnd");
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(Completing, ShowsNoEmptyBox) {
    CompleteBehind("zz");
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_EQ(Editor->Text(), "zz");
    Editor->CompleteWord({});
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(Completing, NeverStartsUnasked) {
    TypeKeys("pri");
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(Completing, ShowsAllMatchesWithTheHelpOfTheCurrentOne) {
    CompleteBehind("PRI");
    EXPECT_EQ(Shown(), (QStringList{"Print", "PrintImage", "Printer"}));
    EXPECT_EQ(Current(), "Print");
    EXPECT_EQ(Help(), "Print texto");
    Press(Qt::Key_Down);
    EXPECT_EQ(Help(), "PrintImage imagen");
    Press(Qt::Key_Down);
    EXPECT_EQ(Help(), "");
}

TEST_F(Completing, ShowsEverythingWhereNoWordIsBegun) {
    CompleteBehind("x = ");
    EXPECT_EQ(Shown().size(), 5);
}

TEST_F(Completing, FollowsWhatIsTyped) {
    CompleteBehind("p");
    TypeKeys("rinti");
    EXPECT_EQ(Shown(), QStringList{"PrintImage"});
    Press(Qt::Key_Backspace, "\b");
    EXPECT_EQ(Shown().size(), 3);
    TypeKeys("x");
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_EQ(Editor->Text(), "printx");
}

TEST_F(Completing, KeepsTheCurrentWordWhileNothingIsTyped) {
    CompleteBehind("p");
    Press(Qt::Key_Down);
    Editor->grab();
    Press(Qt::Key_Shift);
    EXPECT_EQ(Current(), "PrintImage");
}

TEST_F(Completing, EndsWithEnterOrTab) {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        Load("");
        CompleteBehind("pr");
        Press(Qt::Key_Down);
        Press(key, key == Qt::Key_Tab ? "\t" : "\r");
        EXPECT_EQ(Editor->Text(), "PrintImage");
        EXPECT_EQ(Popup(), nullptr);
        Editor->Undo();
        EXPECT_EQ(Editor->Text(), "pr");
    }
}

TEST_F(Completing, EndsWithEscapeAndInsertsNothing) {
    CompleteBehind("pr");
    Press(Qt::Key_Escape, "\x1B");
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_EQ(Editor->Text(), "pr");
}

TEST_F(Completing, EndsWithACharacterThatIsInNoWord) {
    for (const char *character : {" ", "(", "."}) {
        Load("");
        CompleteBehind("pr");
        TypeKeys(character);
        EXPECT_EQ(Popup(), nullptr);
        EXPECT_EQ(Editor->Text(), QString("pr") + character);
    }
}

TEST_F(Completing, EndsWhenTheCaretLeaves) {
    CompleteBehind("pr");
    Press(Qt::Key_Left);
    EXPECT_EQ(Popup(), nullptr);
    Editor->SetCaretPos(At(0, 2));
    Editor->CompleteWord(Words);
    ASSERT_NE(Popup(), nullptr);
    QTest::mouseClick(Editor->viewport(), Qt::LeftButton, {}, QPoint(100, 100));
    EXPECT_EQ(Popup(), nullptr);
    Editor->CompleteWord(Words);
    ASSERT_NE(Popup(), nullptr);
    Editor->clearFocus();
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(Completing, EndsWhenTheWordIsUndone) {
    TypeKeys("p");
    Editor->CompleteWord(Words);
    ASSERT_NE(Popup(), nullptr);
    Press(Qt::Key_Backspace, "\b");
    Press(Qt::Key_Backspace, "\b");
    EXPECT_EQ(Editor->Text(), "");
    TypeKeys(" ");
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(Completing, MovesByLinesAndPagesAndStopsAtTheEnds) {
    CompleteBehind("pr");
    Press(Qt::Key_Up);
    EXPECT_EQ(Current(), "Print");
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Current(), "Printer");
    Press(Qt::Key_Down);
    EXPECT_EQ(Current(), "Printer");
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Current(), "Print");
    EXPECT_EQ(Caret(), At(0, 2));
}

TEST_F(Completing, TakesAWordByAClick) {
    CompleteBehind("pr");
    const QRect row = List().visualRect(List().model()->index(2, 0));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(Editor->Text(), "Printer");
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(Completing, TakesOverTheRestOfTheSameWordOnly) {
    Load("rnd prx");
    Editor->SetCaretPos(At(0, 1));
    Editor->CompleteWord(Words);
    EXPECT_EQ(Editor->Text(), "Rnd prx");
    EXPECT_EQ(Caret(), At(0, 3));
    Editor->SetCaretPos(At(0, 6));
    Editor->CompleteWord(Words);
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), "Rnd Printx");
}

TEST_F(Completing, CountsCharactersAndNotBytes) {
    CompleteBehind(QString::fromUtf8("ñ = \"áé\" + anc"));
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("ñ = \"áé\" + Ancho"));
    EXPECT_EQ(Caret(), At(0, 16));
}

TEST_F(Completing, LeavesTheKeyboardWithTheEditor) {
    CompleteBehind("pr");
    EXPECT_TRUE(Editor->hasFocus());
    EXPECT_TRUE(Editor->isActiveWindow());
    EXPECT_EQ(List().focusPolicy(), Qt::NoFocus);
}

TEST_F(Completing, StaysOnTheScreen) {
    Load(QByteArray(400, '\n') + QByteArray(300, ' ') + "pr");
    Editor->SetCaretPos(At(400, 302));
    Editor->move(Editor->screen()->availableGeometry().bottomRight() - QPoint(300, 200));
    Editor->CompleteWord(Words);
    ASSERT_NE(Popup(), nullptr);
    EXPECT_TRUE(Editor->screen()->availableGeometry().contains(Popup()->geometry()));
}

TEST_F(Completing, LeavesTheLineUncovered) {
    const QRect screen = Editor->screen()->availableGeometry();
    Editor->setFixedHeight(screen.height());
    Load(QByteArray(200, '\n'));
    Completions many;
    for (int word = 0; word < 40; ++word)
        many.push_back({QStringLiteral("palabra%1").arg(word), {}});
    const auto height = static_cast<int>(Ask(QsciScintillaBase::SCI_TEXTHEIGHT));
    for (int top = 0; top < screen.height() - height; top += height * 3) {
        Editor->move(screen.topLeft());
        Editor->SetTopIndex({0});
        Editor->SetCaretPos(At(top / height, 0));
        Editor->CompleteWord(many);
        ASSERT_NE(Popup(), nullptr);
        const QRect line(Editor->viewport()->mapToGlobal(QPoint(0, top / height * height)),
                         QSize(20, height));
        EXPECT_FALSE(Popup()->geometry().intersects(line)) << top;
        EXPECT_TRUE(screen.contains(Popup()->geometry())) << top;
        Press(Qt::Key_Escape, "\x1B");
    }
}

TEST_F(Completing, HasTheEditorsFontAtItsZoom) {
    Editor->SetFontSize(13);
    Ask(QsciScintillaBase::SCI_SETZOOM, 3);
    CompleteBehind("pr");
    EXPECT_EQ(List().font().pointSize(), 16);
}

TEST_F(Completing, TellsAssistiveToolsTheWordAndItsHelp) {
    CompleteBehind("pr");
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&List());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_FALSE(list->text(QAccessible::Name).isEmpty());
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "PrintImage");
    EXPECT_EQ(list->child(1)->text(QAccessible::Description), "PrintImage imagen");
}

TEST_F(Completing, WorksAtSeveralCaretsForTheMainOne) {
    Load("rn\nrn");
    Ask(QsciScintillaBase::SCI_SETSEL, 2, 2);
    Ask(QsciScintillaBase::SCI_ADDSELECTION, 5, 5);
    Editor->CompleteWord(Words);
    EXPECT_EQ(Editor->Text(), "rn\nRnd");
}

TEST_F(Completing, WorksInAVeryLongLine) {
    Load(QByteArray(1'000'000, 'x') + " rn");
    Editor->SetCaretPos(At(0, 1'000'003));
    Editor->CompleteWord(Words);
    EXPECT_EQ(Ask(QsciScintillaBase::SCI_GETLENGTH), 1'000'004);
}

} // namespace Quillbox
