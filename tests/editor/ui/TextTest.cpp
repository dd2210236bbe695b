// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorFixture.h"

namespace Quillbox {

using EditorText = EditorTest;

TEST_F(EditorText, OfANewEditorIsOneEmptyLine) {
    EXPECT_EQ(Editor->LineCount(), 1);
    EXPECT_EQ(Editor->LineText({0}), "");
    EXPECT_EQ(Editor->Text(), "");
    EXPECT_FALSE(Editor->IsModified());
}

TEST_F(EditorText, HasLinesWithoutTheirEnds) {
    Load("uno\r\ndos\rtres\n");
    EXPECT_EQ(Editor->LineCount(), 4);
    EXPECT_EQ(Editor->LineText({0}), "uno");
    EXPECT_EQ(Editor->LineText({1}), "dos");
    EXPECT_EQ(Editor->LineText({2}), "tres");
    EXPECT_EQ(Editor->LineText({3}), "");
}

TEST_F(EditorText, CountsCharactersAndNotBytes) {
    Load("a\xF1o\x80\n");
    EXPECT_EQ(Editor->LineText({0}), "año€");
    Editor->SetCaretPos(At(0, 4));
    EXPECT_EQ(Caret(), At(0, 4));
    Editor->SetCaretPos(At(0, 5));
    EXPECT_EQ(Caret(), At(0, 4)) << "behind the last character";
}

TEST_F(EditorText, TakesLinesOutsideAsTheNearestInside) {
    Load("uno\ndos");
    EXPECT_EQ(Editor->LineText({-1}), "uno");
    EXPECT_EQ(Editor->LineText({7}), "dos");
    Editor->SetLinePosition({9});
    EXPECT_EQ(Caret(), At(1, 0));
}

TEST_F(EditorText, PutsTheCaretAtCharactersOfALine) {
    Load("\xF1"
         "and\xFA\n\xF1u");
    Editor->SetCaretPos(At(0, 2));
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 2), At(0, 2)}));
    Editor->SetCaretPos(At(1, 1));
    EXPECT_EQ(Caret(), At(1, 1));
}

TEST_F(EditorText, TakesColumnsOutsideAsTheNearestInside) {
    Load("\xF1"
         "and\xFA\r\n\xF1u");
    Editor->SetCaretPos(At(0, 99));
    EXPECT_EQ(Caret(), At(0, 5));
    Editor->SetCaretPos(At(0, -3));
    EXPECT_EQ(Caret(), At(0, 0));
    Editor->SetCaretPos(At(5, 1));
    EXPECT_EQ(Caret(), At(1, 1));
}

TEST_F(EditorText, ReportsTheSelectionFromItsStartToItsEnd) {
    Load("\xF1"
         "and\xFA\n\xF1u");
    Select(At(1, 1), At(0, 3));
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 3), At(1, 1)}));
}

TEST_F(EditorText, TellsTheWordAtTheCaret) {
    Load("if a\xF1o+print ");
    Editor->SetCaretPos(At(0, 4));
    EXPECT_EQ(Editor->CurrentWord(), "año");
    Editor->SetCaretPos(At(0, 6));
    EXPECT_EQ(Editor->CurrentWord(), "año");
    Editor->SetCaretPos(At(0, 13));
    EXPECT_EQ(Editor->CurrentWord(), "");
}

TEST_F(EditorText, TellsTheClassOfTheTokenAtTheCaret) {
    Load("if x // if\n/*\nif */ 12");
    Editor->SetCaretPos(At(0, 1));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Keyword);
    Editor->SetCaretPos(At(0, 4));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Unclassified);
    Editor->SetCaretPos(At(0, 9));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Comment);
    Editor->SetCaretPos(At(2, 1));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Comment);
    Editor->SetCaretPos(At(2, 7));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Number);
}

TEST_F(EditorText, TellsTheClassWithoutColoursToo) {
    Load("if x");
    Editor->SetColorSyntax(false);
    Editor->SetCaretPos(At(0, 1));
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Keyword);
}

TEST_F(EditorText, HasNoKeywordsInAnUnknownLanguage) {
    Load("if x");
    Editor->SetLanguage("Otro");
    EXPECT_EQ(Editor->CurrentTokenClass(), TokenClass::Unclassified);
    EXPECT_EQ(Editor->CurrentWord(), "if");
}

TEST_F(EditorText, ReplacesTheSelectionInOneUndoStep) {
    Load("uno dos");
    Select(At(0, 0), At(0, 3));
    Editor->ReplaceSel("ñ\nx");
    EXPECT_EQ(Editor->Text(), "ñ\nx dos");
    EXPECT_EQ(Caret(), At(1, 1));
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "uno dos");
    EXPECT_FALSE(Editor->CanUndo());
}

TEST_F(EditorText, ReplacesAnEmptySelectionByInserting) {
    Load("uno");
    Editor->SetCaretPos(At(0, 1));
    Editor->ReplaceSel("--");
    EXPECT_EQ(Editor->Text(), "u--no");
    EXPECT_EQ(Caret(), At(0, 3));
}

TEST_F(EditorText, InsertsAtAPositionInOneUndoStep) {
    Load("uno\ndos");
    Editor->InsertText("añ\n", At(1, 1));
    EXPECT_EQ(Editor->Text(), "uno\ndañ\nos");
    EXPECT_EQ(Caret(), At(0, 0));
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "uno\ndos");
    EXPECT_FALSE(Editor->CanUndo());
}

TEST_F(EditorText, MovesACaretThatStandsAtAnInsertionBehindIt) {
    Load("uno");
    Editor->SetCaretPos(At(0, 1));
    Editor->InsertText("xy", At(0, 1));
    EXPECT_EQ(Caret(), At(0, 3));
}

TEST_F(EditorText, DeletesTheSelectionAndNothingElse) {
    Load("uno dos");
    Editor->DeleteSel();
    EXPECT_EQ(Editor->Text(), "uno dos");
    Select(At(0, 0), At(0, 4));
    Editor->DeleteSel();
    EXPECT_EQ(Editor->Text(), "dos");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "uno dos");
}

TEST_F(EditorText, UndoesAndRedoesAndKnowsWhenItCan) {
    EXPECT_FALSE(Editor->CanUndo());
    EXPECT_FALSE(Editor->CanRedo());
    Type("a");
    EXPECT_TRUE(Editor->CanUndo());
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "");
    EXPECT_TRUE(Editor->CanRedo());
    Editor->Redo();
    EXPECT_EQ(Editor->Text(), "a");
}

TEST_F(EditorText, ShowsAQuestionMarkForACharacterThatFilesCannotKeep) {
    Editor->ReplaceSel(QString::fromUtf8("Ж“”…–😀"));
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("?“”…–?"));
    Editor->InsertText(QString::fromUtf8("→"), At(0, 0));
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("??“”…–?"));
}

TEST_F(EditorText, HandsOverEachLineAsTheLinesAreCounted) {
    for (const char *text :
         {"", "uno", "uno\n", "uno\r\ndos\rtres\n\ncuatro", "\r\r\n\n\r", "a\rb\rc"}) {
        Load(text);
        QStringList visited;
        Editor->VisitLines([&](LineIndex line, std::string_view utf8) {
            EXPECT_EQ(line.Value, visited.size());
            visited += QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
            return true;
        });
        ASSERT_EQ(visited.size(), Editor->LineCount()) << text;
        for (int line = 0; line < visited.size(); ++line)
            EXPECT_EQ(visited[line], Editor->LineText({line})) << text;
    }
}

TEST_F(EditorText, EndsTheVisitsWhenToldTo) {
    Load("uno\ndos\ntres");
    int visits = 0;
    Editor->VisitLines([&](LineIndex, std::string_view) { return ++visits < 2; });
    EXPECT_EQ(visits, 2);
}

TEST_F(EditorText, KeepsNulCharacters) {
    Editor->ReplaceSel(QString("a") + QChar(0) + "b");
    EXPECT_EQ(Editor->LineText({0}).size(), 3);
    Editor->InsertText(QString(QChar(0)), At(0, 0));
    EXPECT_EQ(Editor->Text().size(), 4);
}

TEST_F(EditorText, ScrollsToATopLineAsFarAsTheTextReaches) {
    QByteArray lines;
    for (int line = 0; line < 500; ++line)
        lines += "x\n";
    Load(lines);
    Editor->show();
    Editor->SetTopIndex({100});
    const ScintillaText text(*Editor);
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 100);
    Editor->SetTopIndex({-1});
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 0);
    Editor->SetTopIndex({499});
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 499);
    Editor->SetTopIndex({5000});
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 500);
}

TEST_F(EditorText, StaysAtTheTopLineWhenTheCaretGoesThere) {
    QByteArray lines;
    for (int line = 0; line < 500; ++line)
        lines += "x\n";
    Load(lines);
    Editor->show();
    Editor->SetTopIndex({200});
    Editor->SetCaretPos(At(200, 0));
    const ScintillaText text(*Editor);
    EXPECT_EQ(text.Send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE), 200);
}

} // namespace Quillbox
