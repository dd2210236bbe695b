// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/LineCommands.h"

#include "fakes/FakeEditor.h"
#include "state/LanguageDefinition.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class LineCommand : public testing::Test {
  protected:
    LineCommand() { Language.SingleLineComment = QStringLiteral("//"); }

    /// Lines and columns of the selection.
    void Select(int startLine, int startColumn, int endLine, int endColumn) {
        Editor.Selection = {{{startLine}, {startColumn}}, {{endLine}, {endColumn}}};
    }

    CallLog Log;
    FakeDisk Disk;
    FakeEditor Editor{Log, Disk};
    LanguageDefinition Language;
};

TEST_F(LineCommand, CommentingPutsTheCaretAtTheLineStartAndInsertsTheMarker) {
    Editor.Content = QStringLiteral("x");
    Select(0, 1, 0, 1);

    ToggleComments(Editor, Language);

    EXPECT_THAT(Log.Calls(), ElementsAre("editor.BeginUndoStep", "editor.SetCaretPos 0 0",
                                         "editor.InsertText // 0 0", "editor.EndUndoStep"));
}

TEST_F(LineCommand, UncommentingDeletesTheNextCharacterTwice) {
    Editor.Content = QStringLiteral("//x");
    Select(0, 1, 0, 1);

    ToggleComments(Editor, Language);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.BeginUndoStep", "editor.SetCaretPos 0 0",
                            "editor.ExecuteCommand DeleteNextCharacter",
                            "editor.ExecuteCommand DeleteNextCharacter", "editor.EndUndoStep"));
}

TEST_F(LineCommand, TogglingDecidesForEachLineByItself) {
    Editor.Content = QStringLiteral("//a\nb\n /c\n  //d");
    Select(0, 0, 3, 2);

    ToggleComments(Editor, Language);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.BeginUndoStep", "editor.SetCaretPos 0 0",
                            "editor.ExecuteCommand DeleteNextCharacter",
                            "editor.ExecuteCommand DeleteNextCharacter", "editor.SetCaretPos 1 0",
                            "editor.InsertText // 1 0", "editor.SetCaretPos 2 0",
                            "editor.InsertText // 2 0", "editor.SetCaretPos 3 0",
                            "editor.InsertText // 3 0", "editor.EndUndoStep"));
}

TEST_F(LineCommand, TakesTheMarkerFromTheLanguage) {
    Language.SingleLineComment = QStringLiteral("REM");
    Editor.Content = QStringLiteral("x\nREM y");
    Select(0, 0, 1, 1);

    ToggleComments(Editor, Language);

    // Two characters are looked at, so a longer marker is never recognised.
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.BeginUndoStep", "editor.SetCaretPos 0 0",
                                         "editor.InsertText REM 0 0", "editor.SetCaretPos 1 0",
                                         "editor.InsertText REM 1 0", "editor.EndUndoStep"));
}

TEST_F(LineCommand, ASelectionThatEndsAtALineStartLeavesThatLineOut) {
    Editor.Content = QStringLiteral("0\n1\n2\n3\n4\n5\n6");
    Select(3, 1, 6, 0);

    IndentLines(Editor);

    EXPECT_THAT(Log.Calls(), ElementsAre("editor.BeginUndoStep", "editor.InsertText \t 3 0",
                                         "editor.InsertText \t 4 0", "editor.InsertText \t 5 0",
                                         "editor.EndUndoStep"));
}

TEST_F(LineCommand, ACaretAtALineStartSelectsNoLine) {
    Editor.Content = QStringLiteral("0\n1");
    Select(1, 0, 1, 0);

    IndentLines(Editor);
    ToggleComments(Editor, Language);
    OutdentLines(Editor);

    EXPECT_THAT(Log.Calls(), testing::Each(testing::EndsWith("UndoStep")));
}

TEST_F(LineCommand, OutdentingDeletesOneLeadingTab) {
    Editor.Content = QStringLiteral("\t\tx\n    y\nz\t");
    Select(0, 0, 2, 1);

    OutdentLines(Editor);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.BeginUndoStep", "editor.SetCaretPos 0 0",
                            "editor.ExecuteCommand DeleteNextCharacter", "editor.EndUndoStep"));
}

} // namespace
} // namespace Quillbox
