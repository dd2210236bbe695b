// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"
#include "PlainTextModel.h"

#include "editor/ui/ScintillaOffsets.h"

#include <QClipboard>
#include <QGuiApplication>

#include <random>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

constexpr int Rounds = 100;
constexpr int StepsPerRound = 1000;
constexpr int LongestText = 1500; ///< a longer one is cut back, so that steps stay quick

/// An editor and the model of it that get the same random steps.
class EditorAgainstModel : public EditorKeys {
  protected:
    void StartRound(unsigned seed) {
        Random_.seed(seed);
        const bool carriageReturns = Pick(2) == 0;
        LineEnd_ = carriageReturns ? QStringLiteral("\r\n") : QStringLiteral("\n");
        QString text;
        for (int line = Pick(12); line > 0; --line)
            text += Piece() + LineEnd_;
        text += Piece();
        Load(text.toLatin1());
        if (!text.contains(LineEnd_))
            ScintillaText(*Editor).Send(Sci::SCI_SETEOLMODE,
                                        carriageReturns ? Sci::SC_EOL_CRLF : Sci::SC_EOL_LF);
        Model_.emplace(text);
        Offsets_ = Editor->findChild<ScintillaOffsets *>();
    }

    int Pick(int count) { return static_cast<int>(Random_() % static_cast<unsigned>(count)); }

    QString Piece() {
        static const QString pieces[] = {QString(),
                                         QStringLiteral("x"),
                                         QStringLiteral("  "),
                                         QStringLiteral("\t"),
                                         QStringLiteral("if (a)"),
                                         QString::fromUtf8("añó"),
                                         QStringLiteral("\""),
                                         QStringLiteral("// c"),
                                         QStringLiteral("/*"),
                                         QStringLiteral("*/"),
                                         QStringLiteral("1.5e3"),
                                         QString::fromUtf8("Ñ=ü")};
        return pieces[Pick(std::size(pieces))];
    }
    QString SomeText() { return Pick(4) == 0 ? Piece() + LineEnd_ + Piece() : Piece(); }
    int Place() { return Model_->OutsideLineEnd(Pick(Model_->Length() + 1)); }

    void SelectInEditor() {
        ScintillaText(*Editor).Send(Sci::SCI_SETSEL, Offsets_->PositionOf(Model_->Anchor()),
                                    Offsets_->PositionOf(Model_->Caret()));
    }
    void Select(int anchor, int caret) {
        Model_->Select(anchor, caret);
        SelectInEditor();
    }

    void TypeLetter() {
        static const QString letters = QString::fromUtf8("aZ0 (ñ\t\"");
        QChar letter = letters[Pick(static_cast<int>(letters.size()))];
        // A tab over several lines shifts them.
        if (letter == u'\t' && Model_->Selected().contains(u'\n'))
            letter = u'a';
        // Letters typed one after the other may become one undo step; the caret's moving away ends
        // it, as does a command.
        ScintillaText(*Editor).Send(Sci::SCI_BEGINUNDOACTION);
        Press(letter.toUpper().unicode(), letter);
        ScintillaText(*Editor).Send(Sci::SCI_ENDUNDOACTION);
        Model_->Replace(Model_->Start(), Model_->End(), letter);
    }
    void BreakLine() {
        const QString before =
            Model_->Text().mid(Model_->LineStart(Model_->Start()),
                               Model_->Start() - Model_->LineStart(Model_->Start()));
        int indent = 0;
        while (indent < before.size() && (before[indent] == u' ' || before[indent] == u'\t'))
            ++indent;
        Press(Qt::Key_Return, QStringLiteral("\r"));
        Model_->Replace(Model_->Start(), Model_->End(), LineEnd_ + before.first(indent));
    }
    void DeleteBackwards() {
        ScintillaText(*Editor).Send(Sci::SCI_BEGINUNDOACTION);
        Press(Qt::Key_Backspace, QStringLiteral("\b"));
        ScintillaText(*Editor).Send(Sci::SCI_ENDUNDOACTION);
        const bool selected = Model_->Start() != Model_->End();
        Model_->Replace(selected ? Model_->Start() : Model_->Before(Model_->Caret()), Model_->End(),
                        {});
    }
    void DeleteForwards() {
        ScintillaText(*Editor).Send(Sci::SCI_BEGINUNDOACTION);
        Editor->ExecuteCommand(EditorCommand::DeleteNextCharacter);
        ScintillaText(*Editor).Send(Sci::SCI_ENDUNDOACTION);
        const bool selected = Model_->Start() != Model_->End();
        Model_->Replace(Model_->Start(), selected ? Model_->End() : Model_->After(Model_->Caret()),
                        {});
    }
    void Cut() {
        if (!Editor->CanCut())
            return;
        const QString selected = Model_->Selected();
        Editor->Cut();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), selected);
        Model_->Replace(Model_->Start(), Model_->End(), {});
    }
    void Paste() {
        const QString text = SomeText();
        QGuiApplication::clipboard()->setText(text);
        Editor->Paste();
        Model_->Replace(Model_->Start(), Model_->End(), text);
    }
    void ReplaceSelection() {
        const QString text = SomeText();
        Editor->ReplaceSel(text);
        Model_->Replace(Model_->Start(), Model_->End(), text);
    }
    void Move() {
        Press(Qt::Key_Left);
        Model_->Select(Model_->Start() == Model_->End() ? Model_->Before(Model_->Caret())
                                                        : Model_->Start(),
                       0);
        Model_->Select(Model_->Anchor(), Model_->Anchor());
    }
    void ExtendSelection() {
        Press(Qt::Key_Right, {}, Qt::ShiftModifier);
        Model_->Select(Model_->Anchor(), Model_->After(Model_->Caret()));
    }
    void Complete() {
        const int place = Model_->Length();
        Select(place, place);
        Editor->ReplaceSel(QStringLiteral(" pri"));
        Model_->Replace(place, place, QStringLiteral(" pri"));
        Editor->CompleteWord({{QStringLiteral("Print"), {}}});
        Model_->Replace(place + 1, place + 4, QStringLiteral("Print"));
    }
    /// Undo and redo put the caret where the edit was; the model takes that over.
    void UndoSome(int steps) {
        for (int step = 0; step < steps && Model_->CanUndo(); ++step) {
            Editor->Undo();
            Model_->Undo();
        }
        TakeSelectionOver();
    }
    void RedoSome(int steps) {
        for (int step = 0; step < steps && Model_->CanRedo(); ++step) {
            Editor->Redo();
            Model_->Redo();
        }
        TakeSelectionOver();
    }
    /// Text, and what can be undone and done again, are as they were before.
    void UndoAndRedoOne() {
        const QString text = Model_->Text();
        if (!Model_->CanUndo())
            return;
        UndoSome(1);
        RedoSome(1);
        EXPECT_EQ(Editor->Text(), text);
    }
    void TakeSelectionOver() {
        const ScintillaText text(*Editor);
        const int anchor = Offsets_->OffsetOf(text.Send(Sci::SCI_GETANCHOR));
        Model_->Select(anchor, Offsets_->OffsetOf(text.Caret()));
    }
    void UseBookmarks() {
        Editor->ExecuteCommand(EditorCommand::ToggleBookmark);
        if (Pick(3) == 0)
            Editor->ExecuteCommand(EditorCommand::ClearBookmarks);
    }
    void CutBack() {
        Editor->ExecuteCommand(EditorCommand::SelectAll);
        Editor->DeleteSel();
        Model_->Replace(0, Model_->Length(), {});
    }

    void Step() {
        switch (Pick(20)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return TypeLetter();
        case 4:
            return BreakLine();
        case 5:
            return DeleteBackwards();
        case 6:
            return DeleteForwards();
        case 7:
            return Cut();
        case 8:
            return Paste();
        case 9:
            return ReplaceSelection();
        case 10:
            return Move();
        case 11:
            return ExtendSelection();
        case 12:
            return UndoSome(1 + Pick(5));
        case 13:
            return RedoSome(1 + Pick(5));
        case 14:
            return UndoAndRedoOne();
        case 15:
            return UseBookmarks();
        case 16:
            return Complete();
        default:
            return Pick(2) == 0 ? Select(Place(), Place()) : SelectOnePlace();
        }
    }
    void SelectOnePlace() {
        const int place = Place();
        Select(place, place);
    }

    void Compare() const {
        const ScintillaText text(*Editor);
        ASSERT_EQ(Editor->Text(), Model_->Text());
        ASSERT_EQ(Offsets_->OffsetOf(text.Caret()), Model_->Caret());
        ASSERT_EQ(Offsets_->OffsetOf(text.Send(Sci::SCI_GETANCHOR)), Model_->Anchor());
        ASSERT_EQ(Editor->CanCopy(), Model_->Start() != Model_->End());
        ASSERT_EQ(Editor->CanUndo(), Model_->CanUndo());
        ASSERT_EQ(Editor->CanRedo(), Model_->CanRedo());
    }

    std::optional<PlainTextModel> Model_;

  private:
    std::mt19937 Random_;
    QString LineEnd_;
    ScintillaOffsets *Offsets_ = nullptr;
};

} // namespace

TEST_F(EditorAgainstModel, NeverLosesOrInventsACharacter) {
    const unsigned first = std::random_device()();
    for (unsigned round = 0; round < Rounds; ++round) {
        SCOPED_TRACE("seed " + std::to_string(first + round));
        StartRound(first + round);
        for (int step = 0; step < StepsPerRound; ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            if (Model_->Length() > LongestText)
                CutBack();
            Step();
            Compare();
            if (HasFailure())
                return;
        }
        UndoSome(StepsPerRound * 2);
        Compare();
        ASSERT_FALSE(Editor->IsModified());
    }
}

} // namespace Quillbox
