// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

namespace Quillbox {
namespace {

const QString ColorTitle = QStringLiteral("^Elegir color$");
const QString LineTitle = QStringLiteral("^Ir a la línea$");
/// Panels of the status bar, in the main window.
constexpr QRect HelpPanel(5, 609, 600, 20);
constexpr QRect PositionPanel(805, 609, 70, 20);

/// The editing commands of the real program, checked by the file that is saved afterwards.
class Editing : public ProgramTest {
  protected:
    bool OpenFile(const QByteArray &bytes) {
        Game_ = Write(QStringLiteral("juego.prg"), bytes);
        return Start() && Open(Game_);
    }
    QByteArray SavedOnce(const QByteArray &expected) {
        Press({QStringLiteral("ctrl+s")});
        return BytesOnceThey(expected, Game_);
    }
    QImage PictureOf(QRect panel) { return Person_.PictureOf(MainTitle).copy(panel); }
    /// Leaves the list of words open.
    bool StartCompletion(const QString &prefix) {
        Person_.Type(prefix);
        return Press({QStringLiteral("ctrl+space")}) && Person_.WaitForMenu();
    }

    QString Game_;
};

} // namespace

TEST_F(Editing, CommentsOutTheSelectedLinesAndTakesItBackInOneStep) {
    ASSERT_TRUE(OpenFile("Cls\r\nFlip\r\nEnd\r\n"));
    ASSERT_TRUE(Press(
        {QStringLiteral("shift+Down"), QStringLiteral("shift+Down"), QStringLiteral("ctrl+k")}));
    const QByteArray commented = "//Cls\r\n//Flip\r\nEnd\r\n";
    EXPECT_EQ(SavedOnce(commented), commented);
    ASSERT_TRUE(Press({QStringLiteral("ctrl+z")}));
    EXPECT_EQ(SavedOnce("Cls\r\nFlip\r\nEnd\r\n"), "Cls\r\nFlip\r\nEnd\r\n");
}

TEST_F(Editing, InsertsTheColourThatIsChosen) {
    ASSERT_TRUE(OpenFile(" "));
    ASSERT_TRUE(Press({QStringLiteral("alt+e")}) && Person_.WaitForMenu());
    Person_.Press({QStringLiteral("o")});
    ASSERT_TRUE(Person_.PressIn(ColorTitle, {QStringLiteral("alt+h"), QStringLiteral("ctrl+a")}));
    Person_.Paste(QStringLiteral("#ff8010"));
    Person_.Press({QStringLiteral("Return")});
    ASSERT_TRUE(Person_.WaitForNoWindow(ColorTitle));
    EXPECT_EQ(SavedOnce("255,128,16 "), "255,128,16 ");
}

TEST_F(Editing, CompletesAKeywordFromTheListOfWordsAndShowsItsHelp) {
    ASSERT_TRUE(OpenFile(""));
    const QImage withoutHelp = PictureOf(HelpPanel);
    ASSERT_TRUE(StartCompletion(QStringLiteral("go")));
    ASSERT_EQ(PictureOf(HelpPanel), withoutHelp);
    Person_.Press({QStringLiteral("Return")});
    ASSERT_TRUE(Person_.WaitForNoMenu());
    EXPECT_TRUE(WaitUntil([&] { return PictureOf(HelpPanel) != withoutHelp; }));
    EXPECT_EQ(SavedOnce("Gosub"), "Gosub");
}

TEST_F(Editing, CompletesTheOnlyWordThatFitsAtOnce) {
    ASSERT_TRUE(OpenFile(""));
    Person_.Type(QStringLiteral("gos"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+space")}));
    EXPECT_EQ(SavedOnce("Gosub"), "Gosub");
}

/// A saved file says that the program has caught up with the keys.
TEST_F(Editing, GoesToTheLineThatIsAskedForAndNamesItInTheStatusBar) {
    ASSERT_TRUE(OpenFile("1\r\n2\r\n3\r\n4\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("x")}));
    ASSERT_EQ(SavedOnce("1\r\n2\r\nx3\r\n4\r\n"), "1\r\n2\r\nx3\r\n4\r\n");
    const QImage atThird = PictureOf(PositionPanel);
    ASSERT_TRUE(Press({QStringLiteral("ctrl+Home"), QStringLiteral("y")}));
    ASSERT_EQ(SavedOnce("y1\r\n2\r\nx3\r\n4\r\n"), "y1\r\n2\r\nx3\r\n4\r\n");
    ASSERT_TRUE(WaitUntil([&] { return PictureOf(PositionPanel) != atThird; }));

    ASSERT_TRUE(Press({QStringLiteral("ctrl+g")}));
    ASSERT_TRUE(Person_.PressIn(LineTitle, {}));
    Person_.Paste(QStringLiteral("3:2"));
    Person_.Press({QStringLiteral("Return")});
    ASSERT_TRUE(Person_.WaitForNoWindow(LineTitle));
    EXPECT_TRUE(WaitUntil([&] { return PictureOf(PositionPanel) == atThird; }));
    ASSERT_TRUE(Press({QStringLiteral("z")}));
    const QByteArray marked = "y1\r\n2\r\nxz3\r\n4\r\n";
    EXPECT_EQ(SavedOnce(marked), marked);
}

TEST_F(Editing, ReplacesEveryPlaceOfARegularExpressionInOneStep) {
    ASSERT_TRUE(OpenFile("nave1=10\r\nnave22=3\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+f")}));
    ASSERT_TRUE(Person_.PressIn(FindTitle, {QStringLiteral("alt+b"), QStringLiteral("ctrl+a")}));
    Person_.Paste(QStringLiteral("nave([0-9]+)"));
    Person_.Press({QStringLiteral("alt+r"), QStringLiteral("ctrl+a")});
    Person_.Paste(QStringLiteral("ovni"));
    Person_.Press({QStringLiteral("alt+x")});
    ASSERT_TRUE(ReplacesAll());
    Person_.Press({QStringLiteral("Escape")});
    ASSERT_TRUE(Person_.WaitForNoWindow(FindTitle));
    EXPECT_EQ(SavedOnce("ovni=10\r\novni=3\r\n"), "ovni=10\r\novni=3\r\n");
    ASSERT_TRUE(Press({QStringLiteral("ctrl+z")}));
    const QByteArray before = "nave1=10\r\nnave22=3\r\n";
    EXPECT_EQ(SavedOnce(before), before);
}

TEST_F(Editing, ForgetsEveryBookmarkAtOnce) {
    ASSERT_TRUE(OpenFile("1\r\n2\r\n3\r\n"));
    ASSERT_TRUE(Press({QStringLiteral("Down"), QStringLiteral("ctrl+F2"),
                       QStringLiteral("ctrl+Home"), QStringLiteral("F2")}));
    Person_.Type(QStringLiteral("a"));
    ASSERT_TRUE(Press(
        {QStringLiteral("ctrl+shift+F2"), QStringLiteral("ctrl+Home"), QStringLiteral("F2")}));
    Person_.Type(QStringLiteral("b"));
    const QByteArray marked = "b1\r\na2\r\n3\r\n";
    EXPECT_EQ(SavedOnce(marked), marked);
}

} // namespace Quillbox
