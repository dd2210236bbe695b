// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/ScintillaCarets.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

class SeveralCarets : public EditorKeys {
  protected:
    SeveralCarets() { QGuiApplication::clipboard()->clear(); }

    void AddCaret(TextPosition place) { AddSelection(place, place); }
    void AddSelection(TextPosition anchor, TextPosition caret) {
        const ScintillaText text(*Editor);
        Ask(Sci::SCI_ADDSELECTION, text.PositionOf(caret), text.PositionOf(anchor));
    }
    /// Selects a column with the keys.
    void SelectColumn(TextPosition start, int rightwards, int downwards) {
        Editor->SetCaretPos(start);
        for (int step = 0; step < downwards; ++step)
            Press(Qt::Key_Down, {}, Qt::AltModifier | Qt::ShiftModifier);
        for (int step = 0; step < rightwards; ++step)
            Press(Qt::Key_Right, {}, Qt::AltModifier | Qt::ShiftModifier);
    }
    int Count() const { return CaretCount(ScintillaText(*Editor)); }
    static QString Clipboard() { return QGuiApplication::clipboard()->text(); }
    static void SetClipboard(const char *text) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    }
};

} // namespace

TEST_F(SeveralCarets, TypeAndDeleteAtAllPlacesInOneStep) {
    Load("ab\ncd\nef");
    Editor->SetCaretPos(At(0, 1));
    AddCaret(At(1, 1));
    AddCaret(At(2, 2));
    TypeKeys("x");
    EXPECT_EQ(Editor->Text(), "axb\ncxd\nefx");
    Press(Qt::Key_Backspace, "\b");
    Press(Qt::Key_Backspace, "\b");
    EXPECT_EQ(Editor->Text(), "b\nd\ne");
    Press(Qt::Key_Delete, "\x7F");
    EXPECT_EQ(Editor->Text(), "\n\ne");
    while (Editor->CanUndo())
        Editor->Undo();
    EXPECT_EQ(Editor->Text(), "ab\ncd\nef");
}

TEST_F(SeveralCarets, ComeByCtrlAndAClick) {
    Load("abc\ndef");
    Editor->show();
    Editor->SetCaretPos(At(0, 0));
    const ScintillaText text(*Editor);
    const BytePosition place = text.PositionOf(At(1, 2));
    const QPoint point(static_cast<int>(Ask(Sci::SCI_POINTXFROMPOSITION, 0, place)),
                       static_cast<int>(Ask(Sci::SCI_POINTYFROMPOSITION, 0, place)) + 3);
    QTest::mouseClick(Editor->viewport(), Qt::LeftButton, Qt::ControlModifier, point);
    EXPECT_EQ(Count(), 2);
    TypeKeys("x");
    EXPECT_EQ(Editor->Text(), "xabc\ndexf");
}

TEST_F(SeveralCarets, GoByCtrlAndAClickOnOne) {
    Load("abc");
    Editor->show();
    Editor->SetCaretPos(At(0, 3));
    AddCaret(At(0, 0));
    for (int click = 0; click < 2; ++click) {
        const QPoint point(static_cast<int>(Ask(Sci::SCI_POINTXFROMPOSITION, 0, 0)), 3);
        QTest::mouseClick(Editor->viewport(), Qt::LeftButton, Qt::ControlModifier, point);
        EXPECT_EQ(Count(), click == 0 ? 1 : 2);
    }
}

TEST_F(SeveralCarets, BreakLinesWithTheIndentOfEach) {
    Load("\tab\n  cd\nef");
    Editor->SetCaretPos(At(0, 2));
    AddSelection(At(1, 3), At(1, 4));
    AddCaret(At(2, 0));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), "\ta\n\tb\n  c\n  \n\nef");
    EXPECT_EQ(Count(), 3);
    TypeKeys("x");
    EXPECT_EQ(Editor->Text(), "\ta\n\txb\n  c\n  x\n\nxef");
    Editor->Undo();
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "\tab\n  cd\nef");
}

TEST_F(SeveralCarets, BreakOneLineAtTwoPlaces) {
    Load("  abcd");
    Editor->SetCaretPos(At(0, 3));
    AddCaret(At(0, 5));
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text().remove('\r'), "  a\n  bc\n  d");
}

TEST_F(SeveralCarets, GetWhatReplacesTheSelectionAndKeepTheirOrder) {
    Load("ab\ncd");
    Editor->SetCaretPos(At(1, 1));
    AddSelection(At(0, 0), At(0, 1));
    Editor->ReplaceSel("RGB");
    EXPECT_EQ(Editor->Text(), "RGBb\ncRGBd");
    EXPECT_EQ(Caret(), At(0, 3));
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "ab\ncd");
    EXPECT_FALSE(Editor->CanUndo());
}

TEST_F(SeveralCarets, ShowAsQuestionMarksWhatFilesCannotKeep) {
    Load("a\nb");
    Editor->SetCaretPos(At(0, 0));
    AddCaret(At(1, 0));
    Press(0, QString::fromUtf8("Ж"));
    EXPECT_EQ(Editor->Text(), "?a\n?b");
}

TEST_F(SeveralCarets, GetWhatAnInputMethodCommits) {
    Load("ab\ncd");
    Select(At(0, 0), At(0, 1));
    AddSelection(At(1, 0), At(1, 1));
    QInputMethodEvent composing(QString::fromUtf8("´"), {});
    QCoreApplication::sendEvent(Editor.get(), &composing);
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("á"));
    QCoreApplication::sendEvent(Editor.get(), &event);
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("áb\nád"));
    while (Editor->CanUndo())
        Editor->Undo();
    EXPECT_EQ(Editor->Text(), "ab\ncd");
}

TEST_F(SeveralCarets, BecomeOneWithEscapeThatKeepsItsSelection) {
    Load("ab\ncd");
    Select(At(0, 0), At(0, 1));
    AddSelection(At(1, 0), At(1, 2));
    Press(Qt::Key_Escape, "\x1B");
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(1, 0), At(1, 2)}));
    EXPECT_EQ(Editor->Text(), "ab\ncd");
}

TEST_F(SeveralCarets, CopyAndCutWhatEachHasSelectedAsLines) {
    Load("uno dos tres");
    Select(At(0, 8), At(0, 12));
    AddSelection(At(0, 0), At(0, 3));
    AddCaret(At(0, 5));
    EXPECT_TRUE(Editor->CanCopy());
    Editor->Copy();
    EXPECT_EQ(Clipboard(), "uno\ntres");
    SetClipboard("");
    Editor->Cut();
    EXPECT_EQ(Clipboard(), "uno\ntres");
    EXPECT_EQ(Editor->Text(), " dos ");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "uno dos tres");
}

TEST_F(SeveralCarets, CutNothingWhenNothingIsSelected) {
    Load("ab");
    SetClipboard("queda");
    AddCaret(At(0, 1));
    Editor->Cut();
    EXPECT_EQ(Editor->Text(), "ab");
    EXPECT_EQ(Clipboard(), "queda");
}

TEST_F(SeveralCarets, PasteTheSameAtAllPlacesOrALineAtEach) {
    Load("a\nb");
    Editor->SetCaretPos(At(0, 1));
    AddCaret(At(1, 1));
    SetClipboard("xyz");
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), "axyz\nbxyz");
    SetClipboard("1\n2");
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), "axyz1\nbxyz2");
    SetClipboard("1\n2\n3");
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), "axyz11\n2\n3\nbxyz21\n2\n3");
}

TEST_F(SeveralCarets, DeleteWhatIsSelectedAtAnyOfThem) {
    Load("ab\ncd");
    Select(At(0, 0), At(0, 2));
    AddCaret(At(1, 1));
    EXPECT_TRUE(Editor->CanCut());
    Editor->DeleteSel();
    EXPECT_EQ(Editor->Text(), "\ncd");
}

TEST_F(SeveralCarets, ComeWithTheNextOccurrenceOfTheWord) {
    Load(QString::fromUtf8("vida = Vida + año : vida = 0").toLatin1());
    Editor->SetCaretPos(At(0, 2));
    Editor->ExecuteCommand(EditorCommand::SelectNextOccurrence);
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 0), At(0, 4)}));
    Editor->ExecuteCommand(EditorCommand::SelectNextOccurrence);
    Editor->ExecuteCommand(EditorCommand::SelectNextOccurrence);
    EXPECT_EQ(Count(), 3);
    TypeKeys("x");
    EXPECT_EQ(Editor->Text(), QString::fromUtf8("x = x + año : x = 0"));
    Editor->SetCaretPos(At(0, 9));
    Editor->ExecuteCommand(EditorCommand::SelectNextOccurrence);
    EXPECT_EQ(Editor->GetSel(), (TextRange{At(0, 8), At(0, 11)}));
}

TEST_F(SeveralCarets, OfAColumnTypeInEveryLine) {
    Load("abc\ndef\nghi");
    SelectColumn(At(0, 1), 1, 2);
    EXPECT_EQ(Count(), 3);
    TypeKeys("x");
    EXPECT_EQ(Editor->Text(), "axc\ndxf\ngxi");
}

TEST_F(SeveralCarets, OfAColumnReachBeyondShortLines) {
    Load("abcd\n\nefgh");
    SelectColumn(At(0, 3), 0, 2);
    Editor->ReplaceSel("x");
    EXPECT_EQ(Editor->Text(), "abcxd\n   x\nefgxh");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "abcd\n\nefgh");
    SelectColumn(At(0, 3), 0, 2);
    TypeKeys("y");
    EXPECT_EQ(Editor->Text(), "abcyd\n   y\nefgyh");
}

TEST_F(SeveralCarets, OfAColumnAreCutAndPastedAsAColumn) {
    Load("abc\ndef\n");
    SelectColumn(At(0, 1), 1, 1);
    Editor->Cut();
    EXPECT_EQ(Editor->Text(), "ac\ndf\n");
    Editor->SetCaretPos(At(0, 0));
    Editor->Paste();
    EXPECT_EQ(Editor->Text(), "bac\nedf\n");
    Editor->Undo();
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), "abc\ndef\n");
}

TEST_F(SeveralCarets, OfAColumnBreakLines) {
    Load(" abc\n def");
    SelectColumn(At(0, 2), 1, 1);
    Press(Qt::Key_Return, "\r");
    EXPECT_EQ(Editor->Text(), " a\n c\n d\n f");
    Editor->Undo();
    EXPECT_EQ(Editor->Text(), " abc\n def");
}

TEST_F(SeveralCarets, OfAColumnComeByDraggingWithAlt) {
    Load("abcdef\nghijkl\nmnopqr");
    Editor->show();
    const ScintillaText text(*Editor);
    const auto pointOf = [&](TextPosition place) {
        const BytePosition position = text.PositionOf(place);
        return QPoint(static_cast<int>(Ask(Sci::SCI_POINTXFROMPOSITION, 0, position)),
                      static_cast<int>(Ask(Sci::SCI_POINTYFROMPOSITION, 0, position)) + 3);
    };
    QTest::mousePress(Editor->viewport(), Qt::LeftButton, Qt::AltModifier, pointOf(At(0, 1)));
    QMouseEvent drag(QEvent::MouseMove, pointOf(At(2, 3)),
                     Editor->viewport()->mapToGlobal(pointOf(At(2, 3))), Qt::NoButton,
                     Qt::LeftButton, Qt::AltModifier);
    QCoreApplication::sendEvent(Editor->viewport(), &drag);
    QTest::mouseRelease(Editor->viewport(), Qt::LeftButton, Qt::AltModifier, pointOf(At(2, 3)));
    EXPECT_EQ(Count(), 3);
    Editor->Copy();
    EXPECT_EQ(Clipboard().remove('\r'), "bc\nhi\nno\n");
}

TEST_F(SeveralCarets, GoWhenARulePutsTheCaretSomewhere) {
    Load("ab\ncd");
    AddCaret(At(1, 1));
    Editor->SetCaretPos(At(0, 1));
    EXPECT_EQ(Count(), 1);
    AddCaret(At(1, 1));
    Editor->SetLinePosition({1});
    EXPECT_EQ(Count(), 1);
}

} // namespace Quillbox
