// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/ScintillaMarks.h"

#include <QImage>

#include <vector>

namespace Quillbox {

namespace {

class Bookmarks : public EditorKeys {
  protected:
    void Mark(std::initializer_list<int> lines) {
        for (const int line : lines) {
            Editor->SetCaretPos(At(line, 0));
            Editor->ExecuteCommand(EditorCommand::ToggleBookmark);
        }
    }
    std::vector<int> Marked() const {
        std::vector<int> lines;
        for (int line = 0; line < Editor->LineCount(); ++line)
            if ((Ask(QsciScintillaBase::SCI_MARKERGET, line) & (1 << LineMark::Bookmark)) != 0)
                lines.push_back(line);
        return lines;
    }
    int Go(EditorCommand command) {
        Editor->ExecuteCommand(command);
        return Caret().Line.Value;
    }
    using Lines = std::vector<int>;
};

} // namespace

TEST_F(Bookmarks, MoveWithTheirLinesWhenOthersComeOrGoAbove) {
    Load("00\n11\n22\n33\n44");
    Mark({1, 3});
    Editor->SetCaretPos(At(0, 2));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Marked(), (Lines{2, 4}));
    Editor->Undo();
    EXPECT_EQ(Marked(), (Lines{1, 3}));
    Select(At(2, 0), At(3, 0));
    Editor->DeleteSel();
    EXPECT_EQ(Marked(), (Lines{1, 2}));
    EXPECT_EQ(Editor->LineText({2}), "33");
}

TEST_F(Bookmarks, StayWithTheTextWhenItsLineIsPushedDown) {
    Load("00\n11\n22");
    Mark({1});
    Editor->SetCaretPos(At(1, 0));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->LineText({2}), "11");
    EXPECT_EQ(Marked(), Lines{2});
}

TEST_F(Bookmarks, StayWhereALineBeginsThatIsBrokenInTheMiddle) {
    Load("00\n11\n22");
    Mark({1});
    Editor->SetCaretPos(At(1, 1));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Marked(), Lines{1});
}

TEST_F(Bookmarks, OfALineThatIsJoinedStayWithTheJoinedLine) {
    Load("00\n11\n22");
    Mark({1});
    Editor->SetCaretPos(At(1, 0));
    Press(Qt::Key_Backspace, "\b");
    EXPECT_EQ(Editor->LineText({0}), "0011");
    EXPECT_EQ(Marked(), Lines{0});
}

TEST_F(Bookmarks, AreReachedOnTheirOnlyLineFromAnywhere) {
    Load("00\n11\n22");
    Mark({1});
    for (const EditorCommand command :
         {EditorCommand::NextBookmark, EditorCommand::PreviousBookmark,
          EditorCommand::FirstBookmark, EditorCommand::LastBookmark})
        for (int line = 0; line < 3; ++line) {
            Editor->SetCaretPos(At(line, 1));
            EXPECT_EQ(Go(command), 1);
        }
}

TEST_F(Bookmarks, ShowInTheMargin) {
    Load("00\n11\n22");
    Editor->show();
    const auto blue = [this] {
        const QImage image = Editor->viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < 14; ++x)
                count += image.pixelColor(x, y).blue() > image.pixelColor(x, y).red() + 60 ? 1 : 0;
        return count;
    };
    EXPECT_EQ(blue(), 0);
    Mark({1});
    EXPECT_GT(blue(), 20);
}

TEST_F(Bookmarks, AreNoEdit) {
    Load("00\n11");
    Mark({0, 1});
    Editor->ExecuteCommand(EditorCommand::ClearBookmarks);
    EXPECT_EQ(Marked(), Lines{});
    EXPECT_FALSE(Editor->IsModified());
    EXPECT_FALSE(Editor->CanUndo());
}

} // namespace Quillbox
