// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Quillbox {

namespace {

class EditorCommands : public EditorTest {
  protected:
    void Run(EditorCommand command) { Editor->ExecuteCommand(command); }

    void ToggleAt(int line) {
        Editor->SetCaretPos(At(line, 0));
        Run(EditorCommand::ToggleBookmark);
    }

    int LineBehind(EditorCommand command, int line) {
        Editor->SetCaretPos(At(line, 1));
        Run(command);
        return Caret().Line.Value;
    }
};

} // namespace

TEST_F(EditorCommands, SelectAllSelectsTheWholeText) {
    Load("uno\ndos");
    Run(EditorCommand::SelectAll);
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 0), At(1, 3)}));
}

TEST_F(EditorCommands, DeleteNextCharacterDeletesOneCharacter) {
    Load("\xF1o\r\nx");
    Run(EditorCommand::DeleteNextCharacter);
    EXPECT_EQ(Editor->Text(), "o\r\nx");
    Run(EditorCommand::DeleteNextCharacter);
    Run(EditorCommand::DeleteNextCharacter);
    EXPECT_EQ(Editor->Text(), "x");
}

TEST_F(EditorCommands, DeleteNextCharacterDoesNothingAtTheEnd) {
    Load("x");
    Editor->SetCaretPos(At(0, 1));
    Run(EditorCommand::DeleteNextCharacter);
    EXPECT_EQ(Editor->Text(), "x");
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(EditorCommands, BookmarksAreFoundInBothDirectionsAndAroundTheEnds) {
    Load("00\n11\n22\n33\n44\n55");
    ToggleAt(1);
    ToggleAt(3);
    EXPECT_EQ(LineBehind(EditorCommand::NextBookmark, 0), 1);
    EXPECT_EQ(LineBehind(EditorCommand::NextBookmark, 1), 3);
    EXPECT_EQ(LineBehind(EditorCommand::NextBookmark, 3), 1);
    EXPECT_EQ(LineBehind(EditorCommand::NextBookmark, 5), 1);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 5), 3);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 3), 1);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 1), 3);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 0), 3);
    EXPECT_EQ(LineBehind(EditorCommand::FirstBookmark, 5), 1);
    EXPECT_EQ(LineBehind(EditorCommand::LastBookmark, 0), 3);
}

TEST_F(EditorCommands, BookmarksOnTheFirstAndLastLineAreFound) {
    Load("00\n11\n22");
    ToggleAt(0);
    ToggleAt(2);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 0), 2);
    EXPECT_EQ(LineBehind(EditorCommand::NextBookmark, 2), 0);
    EXPECT_EQ(LineBehind(EditorCommand::PreviousBookmark, 1), 0);
}

TEST_F(EditorCommands, BookmarksThatDoNotExistMoveNothing) {
    Load("00\n11");
    for (const EditorCommand command :
         {EditorCommand::NextBookmark, EditorCommand::PreviousBookmark,
          EditorCommand::FirstBookmark, EditorCommand::LastBookmark}) {
        Editor->SetCaretPos(At(1, 1));
        Run(command);
        EXPECT_EQ(Caret(), At(1, 1));
    }
}

TEST_F(EditorCommands, BookmarksAreTakenAwayByASecondToggleOrAllAtOnce) {
    Load("00\n11\n22\n33");
    ToggleAt(1);
    ToggleAt(1);
    EXPECT_EQ(LineBehind(EditorCommand::FirstBookmark, 3), 3);
    ToggleAt(1);
    ToggleAt(2);
    Run(EditorCommand::ClearBookmarks);
    EXPECT_EQ(LineBehind(EditorCommand::FirstBookmark, 3), 3);
}

TEST_F(EditorCommands, BookmarksFollowTheirLines) {
    Load("00\n11\n22");
    ToggleAt(1);
    Editor->InsertText("nueva\nnueva\n", At(0, 0));
    EXPECT_EQ(LineBehind(EditorCommand::FirstBookmark, 0), 3);
    Editor->Undo();
    EXPECT_EQ(LineBehind(EditorCommand::FirstBookmark, 0), 1);
}

TEST_F(EditorCommands, ClipboardGetsWhatIsCopiedOrCut) {
    Load("uno dos");
    EXPECT_FALSE(Editor->CanCopy());
    EXPECT_FALSE(Editor->CanCut());
    Select(At(0, 0), At(0, 3));
    EXPECT_TRUE(Editor->CanCopy());
    Editor->Copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "uno");
    EXPECT_EQ(Editor->Text(), "uno dos");
    Select(At(0, 3), At(0, 7));
    EXPECT_TRUE(Editor->CanCut());
    Editor->Cut();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), " dos");
    EXPECT_EQ(Editor->Text(), "uno");
}

TEST_F(EditorCommands, ClipboardHasABlankForANul) {
    Editor->ReplaceSel(QString("a") + QChar(0) + "b");
    Run(EditorCommand::SelectAll);
    Editor->Copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "a b");
}

TEST_F(EditorCommands, PasteTakesTextOnly) {
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(Editor->CanPaste());
    QGuiApplication::clipboard()->setText("x");
    EXPECT_TRUE(Editor->CanPaste());
}

TEST_F(EditorCommands, PasteShowsCharactersThatFilesCannotKeepAsQuestionMarks) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8("señal Ж “a”"));
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("señal ? “a”"));
}

TEST_F(EditorCommands, PasteGivesLinesTheLineEndOfTheText) {
    Load("a\r\n");
    QGuiApplication::clipboard()->setText("x\ny\n");
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), "x\r\ny\r\na\r\n");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "a\r\n");
}

TEST_F(EditorCommands, ContentsGoToAnotherEditorAsTheyAre) {
    QByteArray lines;
    for (int line = 0; line < 300; ++line)
        lines += "linea\r\n";
    Load(lines);
    Editor->show();
    ToggleAt(7);
    Type("x");
    Editor->SetTopIndex({100});
    Select(At(101, 1), At(102, 3));
    const auto other = NewEditor();
    other->show();
    other->TakeContentsFrom(*Editor);
    EXPECT_EQ(other->LineText({7}), "xlinea");
    EXPECT_TRUE(other->IsModified());
    EXPECT_EQ(other->GetSel(), (TextRange{At(101, 1), At(102, 3)}));
    EXPECT_EQ(other->SendScintilla(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 100);
    Editor.reset();
    other->ExecuteCommand(EditorCommand::FirstBookmark);
    EXPECT_EQ(other->GetSel().End, At(7, 0));
    other->Undo();
    EXPECT_FALSE(other->IsModified());
    EXPECT_EQ(other->LineText({7}), "linea");
}

TEST_F(EditorCommands, ContentsShownTwiceStaySoundUntilOneEditorGoes) {
    Load("uno\ndos");
    auto other = NewEditor();
    other->TakeContentsFrom(*Editor);
    other->InsertText("x", At(0, 0));
    Editor->InsertText("y", At(1, 0));
    Editor->grab();
    other->grab();
    EXPECT_EQ(Editor->Text(), "xuno\nydos");
    EXPECT_EQ(other->Text(), "xuno\nydos");
    Load("otro");
    EXPECT_EQ(other->Text(), "xuno\nydos");
    Type("z");
    EXPECT_EQ(other->Text(), "xuno\nydos");
    EXPECT_EQ(Editor->Text(), "zotro");
    other.reset();
    EXPECT_EQ(Editor->Text(), "zotro");
}

TEST_F(EditorCommands, ContentsOfAnEditorStayWhenItTakesItsOwn) {
    Load("uno");
    Editor->TakeContentsFrom(*Editor);
    EXPECT_EQ(Editor->Text(), "uno");
}

} // namespace Quillbox
