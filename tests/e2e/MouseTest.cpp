// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"
#include "base/Version.h"

namespace Quillbox {
namespace {

/// The centre of a tool button, from the inner corner of the main window.
constexpr QPoint ButtonAt(int x) { return {x, 40}; }

constexpr QPoint NewButton = ButtonAt(20);
constexpr QPoint OpenButton = ButtonAt(53);
constexpr QPoint SaveButton = ButtonAt(86);
constexpr QPoint CloseButton = ButtonAt(152);
constexpr QPoint UndoButton = ButtonAt(265);
constexpr QPoint RedoButton = ButtonAt(298);
constexpr QPoint RunButton = ButtonAt(438);
constexpr QPoint LeaveButton = ButtonAt(722);

/// The tabs of the help page and of the first document.
constexpr QPoint HelpTab(30, 105);
constexpr QPoint FirstTab(85, 105);

/// A maximised document's boxes at the right end of the menu bar.
constexpr QPoint DocumentRestoreBox(-32, 11);
constexpr QPoint DocumentCloseBox(-12, 11);

constexpr QPoint InTheText(120, 150);

/// Everything by mouse that a mouse can do.
class Mouse : public ProgramTest {
  protected:
    bool OpenFile(const QByteArray &bytes) {
        Game_ = Write(QStringLiteral("juego.prg"), bytes);
        return Start() && Open(Game_);
    }

    bool Click(QPoint place, int button = 1) { return Person_.ClickIn(MainTitle, place, button); }

    QString Game_;
};

} // namespace

TEST_F(Mouse, MakesADocumentAndClosesItOnTheToolbar) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(NewButton));
    ASSERT_TRUE(Shows(Untitled));
    ASSERT_TRUE(Click(CloseButton));
    EXPECT_TRUE(ShowsHelp());
}

TEST_F(Mouse, OpensAndSavesOnTheToolbar) {
    const QString game = Write(QStringLiteral("otro.prg"), "Cls");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(OpenButton));
    ASSERT_TRUE(Person_.ChooseFile(OpenTitle, game));
    ASSERT_TRUE(Shows(game));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Click(SaveButton));
    EXPECT_EQ(BytesOnceThey("xCls", game), "xCls");
}

TEST_F(Mouse, UndoesAndRedoesOnTheToolbar) {
    ASSERT_TRUE(OpenFile("Cls"));
    Person_.Type(QStringLiteral("uno"));
    ASSERT_TRUE(Click(UndoButton) && Click(SaveButton));
    EXPECT_EQ(BytesOnceThey("Cls", Game_), "Cls");
    ASSERT_TRUE(Click(RedoButton) && Click(SaveButton));
    EXPECT_EQ(BytesOnceThey("unoCls", Game_), "unoCls");
}

TEST_F(Mouse, RunsOnTheToolbar) {
    ASSERT_TRUE(OpenFile("Cls"));
    ASSERT_TRUE(Click(RunButton));
    ASSERT_NE(Person_.WaitForWindow(NoticeTitle), 0);
    EXPECT_EQ(ProgramOf(Person_.ProcessOf(NoticeTitle)), QStringLiteral("FXI.exe"));
    EXPECT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
}

TEST_F(Mouse, LeavesOnTheToolbar) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Click(LeaveButton));
    ASSERT_TRUE(Run_.WaitForEnd());
    EXPECT_EQ(Run_.ExitCode(), 0);
}

TEST_F(Mouse, GoesFromTabToTab) {
    ASSERT_TRUE(OpenFile("Cls"));
    const QString other = Write(QStringLiteral("otro.prg"), "2");
    ASSERT_TRUE(Open(other));
    ASSERT_TRUE(Click(HelpTab));
    EXPECT_TRUE(ShowsHelp());
    ASSERT_TRUE(Click(FirstTab));
    ASSERT_TRUE(Shows(Game_));
    // The editor has the keyboard at once.
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("xCls", Game_), "xCls");
    EXPECT_EQ(BytesOf(other), "2");
}

TEST_F(Mouse, OpensTheEditMenuWithARightClickInTheText) {
    ASSERT_TRUE(OpenFile("Cls\r\nFlip"));
    ASSERT_TRUE(Click(InTheText, 3));
    ASSERT_TRUE(Person_.WaitForMenu());
    // "Seleccionar todo" by its letter.
    Person_.Press({QStringLiteral("s")});
    ASSERT_TRUE(Person_.WaitForNoMenu());
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("x", Game_), "x");
}

TEST_F(Mouse, PutsTheCaretWhereItClicks) {
    ASSERT_TRUE(OpenFile("uno\r\ndos\r\n"));
    ASSERT_TRUE(Click(QPoint(400, 129)));
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("unox\r\ndos\r\n", Game_), "unox\r\ndos\r\n");
}

TEST_F(Mouse, AsksAboutChangesWhenTheCloseBoxOfADocumentIsClicked) {
    ASSERT_TRUE(OpenFile("Cls"));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Click(DocumentCloseBox));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    EXPECT_EQ(BytesOnceThey("xCls", Game_), "xCls");
    EXPECT_TRUE(ShowsHelp());
}

TEST_F(Mouse, KeepsTheNamesOfDocumentsWhoseWindowsLieBesideEachOther) {
    ASSERT_TRUE(OpenFile("Cls"));
    const QString other = Write(QStringLiteral("otro.prg"), "2");
    ASSERT_TRUE(Open(other));
    ASSERT_TRUE(Click(DocumentRestoreBox));
    ASSERT_NE(Person_.WaitForWindow(Exactly(
                  QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>"))),
              0);
    ASSERT_TRUE(Press({QStringLiteral("ctrl+shift+F6")}));
    ASSERT_TRUE(Shows(Game_));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Click(RunButton));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_EQ(BytesOf(Game_), "xCls");
    EXPECT_EQ(BytesOf(other), "2");
}

} // namespace Quillbox
