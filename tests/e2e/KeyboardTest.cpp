// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

namespace Quillbox {
namespace {

/// Everything by keyboard. What a key has done is read off the saved file: a mark typed at the
/// caret shows where the caret was.
class Keyboard : public ProgramTest {
  protected:
    bool OpenFile(const QByteArray &bytes) {
        Game_ = Write(QStringLiteral("juego.prg"), bytes);
        return Start() && Open(Game_);
    }

    QByteArray SavedOnce(const QByteArray &expected) {
        Press({QStringLiteral("ctrl+s")});
        return BytesOnceThey(expected, Game_);
    }

    /// Opens the menu with this letter and chooses the item with that one.
    bool ChooseItem(const QString &menu, const QString &item) {
        if (!Press({QStringLiteral("alt+") + menu}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({item});
        return true;
    }

    QString Game_;
};

} // namespace

TEST_F(Keyboard, OpensMenusAndChoosesTheirItemsByTheirLetters) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseItem(QStringLiteral("a"), QStringLiteral("n")));
    ASSERT_TRUE(Shows(Untitled));
    ASSERT_TRUE(ChooseItem(QStringLiteral("a"), QStringLiteral("e")));
    EXPECT_TRUE(ShowsHelp());
    ASSERT_TRUE(ChooseItem(QStringLiteral("a"), QStringLiteral("s")));
    EXPECT_TRUE(Run_.WaitForEnd());
    EXPECT_EQ(Run_.ExitCode(), 0);
}

TEST_F(Keyboard, WalksThroughTheDocumentsAndTheHelpPage) {
    const QString first = Write(QStringLiteral("uno.prg"), "1");
    const QString second = Write(QStringLiteral("dos.prg"), "2");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(first) && Open(second));
    for (const QString &shown : {first, QStringLiteral("Ayuda"), QStringLiteral("Ayuda")}) {
        ASSERT_TRUE(Press({QStringLiteral("ctrl+shift+F6")}));
        EXPECT_TRUE(Shows(shown));
    }
    for (const QString &shown : {first, second, second}) {
        ASSERT_TRUE(Press({QStringLiteral("ctrl+F6")}));
        EXPECT_TRUE(Shows(shown));
    }
    // The editor has the keyboard wherever the walk ends.
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("x2", second), "x2");
}

TEST_F(Keyboard, ClosesADocumentWithTheKeyOfChildWindows) {
    ASSERT_TRUE(OpenFile("Cls"));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+F4")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+n")}));
    EXPECT_TRUE(ShowsHelp());
}

TEST_F(Keyboard, GoingOnWithNoDocumentOpenIsARunTimeErrorAndTheProgramGoesOn) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(ClosesAtOnce(Untitled));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+F6")}));
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 9 en tiempo de ejecución:\n\n"
                             "Subíndice fuera del intervalo."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(Leaves());
}

TEST_F(Keyboard, BringsTheHelpPageForwardWithF1) {
    ASSERT_TRUE(OpenFile("Cls"));
    ASSERT_TRUE(Press({QStringLiteral("F1")}));
    EXPECT_TRUE(ShowsHelp());
}

TEST_F(Keyboard, FindsATextInTheDialogAndItsNextPlacesWithoutIt) {
    ASSERT_TRUE(OpenFile("Cls\r\nnave=1\r\nCls\r\nNave=2\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+f")}));
    ASSERT_TRUE(Person_.PressIn(FindTitle, {}));
    Person_.Type(QStringLiteral("nave\n"));
    ASSERT_TRUE(Person_.PressIn(FindTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(FindTitle));
    ASSERT_TRUE(Press({QStringLiteral("F3")}));

    Person_.Type(QStringLiteral("barco"));

    const QByteArray changed = "Cls\r\nnave=1\r\nCls\r\nbarco=2\r\n";
    EXPECT_EQ(SavedOnce(changed), changed);
}

TEST_F(Keyboard, ReplacesEveryPlaceOfATextInTheDialog) {
    ASSERT_TRUE(OpenFile("nave=nave+1\r\nnaves=2\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+f")}));
    ASSERT_TRUE(Person_.PressIn(FindTitle, {QStringLiteral("alt+b")}));
    Person_.Type(QStringLiteral("nave"));
    Person_.Press({QStringLiteral("alt+r")});
    Person_.Type(QStringLiteral("ovni"));
    Person_.Press({QStringLiteral("alt+p")});
    ASSERT_TRUE(ReplacesAll());
    Person_.Press({QStringLiteral("Escape")});
    ASSERT_TRUE(Person_.WaitForNoWindow(FindTitle));
    const QByteArray changed = "ovni=ovni+1\r\nnaves=2\r\n";
    EXPECT_EQ(SavedOnce(changed), changed);
}

TEST_F(Keyboard, GoesFromBookmarkToBookmark) {
    ASSERT_TRUE(OpenFile("1\r\n2\r\n3\r\n4\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("Down"), QStringLiteral("ctrl+F2"), QStringLiteral("Down"),
                       QStringLiteral("Down"), QStringLiteral("ctrl+F2"),
                       QStringLiteral("ctrl+Home"), QStringLiteral("F2")}));
    Person_.Type(QStringLiteral("a"));
    ASSERT_TRUE(Press({QStringLiteral("F2")}));
    Person_.Type(QStringLiteral("b"));
    ASSERT_TRUE(Press({QStringLiteral("shift+F2")}));
    Person_.Type(QStringLiteral("c"));
    const QByteArray changed = "1\r\nca2\r\n3\r\nb4\r\n";
    EXPECT_EQ(SavedOnce(changed), changed);
}

TEST_F(Keyboard, TakesBackWhatWasTypedAndTypesItAgain) {
    ASSERT_TRUE(OpenFile("Cls"));
    Person_.Type(QStringLiteral("uno"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+z")}));
    EXPECT_EQ(SavedOnce("Cls"), "Cls");
    ASSERT_TRUE(Press({QStringLiteral("ctrl+y")}));
    EXPECT_EQ(SavedOnce("unoCls"), "unoCls");
}

TEST_F(Keyboard, ASaveTakenBackCountsAsAChange) {
    ASSERT_TRUE(OpenFile("Cls"));
    Person_.Type(QStringLiteral("uno"));
    ASSERT_EQ(SavedOnce("unoCls"), "unoCls");
    ASSERT_TRUE(Press({QStringLiteral("ctrl+z")}));
    EXPECT_TRUE(ClosesWithQuestion(Game_));
}

TEST_F(Keyboard, SelectsAllWithTheKeyOfTheOldDays) {
    ASSERT_TRUE(OpenFile("Cls\r\nFlip"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+e")}));
    Person_.Type(QStringLiteral("x"));
    EXPECT_EQ(SavedOnce("x"), "x");
}

} // namespace Quillbox
