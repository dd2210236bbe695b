// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that change the selected lines, on a real text.
#include "editor/LineCommands.h"
#include "EditorFixture.h"

namespace Quillbox {

namespace {

class LineCommandsInText : public EditorTest {
  protected:
    /// The only line's text after its comment is toggled.
    QString Toggled(const QByteArray &line) {
        Load(line);
        Editor->SetCaretPos(At(0, 1));
        ToggleComments(*Editor, TestLanguage());
        return Editor->Text();
    }

    /// After a command, its undo must give the exact text back in one step.
    void ExpectOneUndoStep(const QString &before) {
        const QString after = Editor->Text();
        Editor->Undo();
        EXPECT_EQ(Editor->Text(), before);
        EXPECT_FALSE(Editor->CanUndo());
        Editor->Redo();
        EXPECT_EQ(Editor->Text(), after);
    }
};

} // namespace

TEST_F(LineCommandsInText, TogglingRemovesTheMarkerOrPutsItInFront) {
    EXPECT_EQ(Toggled("//x"), "x");
    EXPECT_EQ(Toggled("x"), "//x");
    EXPECT_EQ(Toggled("/x"), "///x");
    EXPECT_EQ(Toggled("  //x"), "//  //x");
    EXPECT_EQ(Toggled("//"), "");
    EXPECT_EQ(Toggled("// //x"), " //x");
}

TEST_F(LineCommandsInText, TogglingInvertsEachLineOfAMixedSelection) {
    Load("//a\r\nb\r\n\r\n//\xF1");
    Select(At(0, 0), At(3, 3));

    ToggleComments(*Editor, TestLanguage());

    EXPECT_EQ(Editor->Text(), QString::fromUtf8("a\r\n//b\r\n//\r\nñ"));
    ExpectOneUndoStep(QString::fromUtf8("//a\r\nb\r\n\r\n//ñ"));
}

TEST_F(LineCommandsInText, TogglingLeavesTheLineAloneWhereTheSelectionEndsAtItsStart) {
    Load("0\n1\n2\n3\n4\n5\n6");
    Select(At(3, 0), At(6, 0));

    ToggleComments(*Editor, TestLanguage());

    EXPECT_EQ(Editor->Text(), "0\n1\n2\n//3\n//4\n//5\n6");
}

TEST_F(LineCommandsInText, TogglingLeavesTheCaretInTheLastLine) {
    Load("//a\nb\n//c");
    Select(At(0, 0), At(1, 1));
    ToggleComments(*Editor, TestLanguage());
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(1, 2), At(1, 2)}));
    Editor->SetCaretPos(At(2, 3));
    ToggleComments(*Editor, TestLanguage());
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(2, 0), At(2, 0)}));
}

TEST_F(LineCommandsInText, IndentingKeepsTheSelection) {
    Load("ab\ncd\nef");
    Select(At(0, 1), At(1, 1));

    IndentLines(*Editor);

    EXPECT_EQ(Editor->Text(), "\tab\n\tcd\nef");
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 2), At(1, 2)}));
    ExpectOneUndoStep(QStringLiteral("ab\ncd\nef"));
}

TEST_F(LineCommandsInText, OutdentingRemovesOneTabFromTheLinesThatBeginWithOne) {
    Load("\t\ta\n    b\nc\n\td");
    Select(At(0, 0), At(3, 1));

    OutdentLines(*Editor);

    EXPECT_EQ(Editor->Text(), "\ta\n    b\nc\nd");
    ExpectOneUndoStep(QStringLiteral("\t\ta\n    b\nc\n\td"));
}

TEST_F(LineCommandsInText, ACommandTellsItsChangesOnce) {
    Load("a\nb\nc");
    Select(At(0, 0), At(2, 1));
    int changes = 0;
    QObject::connect(Editor.get(), &ScintillaEditor::TextChanged, [&] { ++changes; });

    ToggleComments(*Editor, TestLanguage());

    EXPECT_EQ(changes, 1);
}

TEST_F(LineCommandsInText, ACaretAtALineStartChangesNothing) {
    Load("\ta\nb");
    Editor->SetCaretPos(At(1, 0));

    ToggleComments(*Editor, TestLanguage());
    IndentLines(*Editor);
    OutdentLines(*Editor);

    EXPECT_EQ(Editor->Text(), "\ta\nb");
    EXPECT_FALSE(Editor->IsModified());
}

} // namespace Quillbox
