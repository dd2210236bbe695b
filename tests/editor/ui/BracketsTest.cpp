// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeyPresses.h"

#include "editor/ui/ScintillaBrackets.h"
#include "state/Language.h"

namespace Quillbox {

namespace {

using Result = BracketPair::Match;
constexpr BytePosition Nowhere = -1;

class Brackets : public EditorKeys {
  protected:
    /// The place of the bracket that belongs to the one at `caret`, both in bytes.
    BytePosition PartnerAt(BytePosition caret) {
        Ask(QsciScintillaBase::SCI_GOTOPOS, caret);
        return FindBrackets(Text, Colouring).Other;
    }
    Result ResultAt(BytePosition caret) {
        Ask(QsciScintillaBase::SCI_GOTOPOS, caret);
        return FindBrackets(Text, Colouring).Result;
    }
    void LoadColoured(const QByteArray &bytes) {
        Load(bytes);
        Colouring.TextReplaced();
        Colouring.SetRules(Languages.FindRules(SourceLanguage.Name), LanguageChange::Everything);
    }
    BytePosition Jump(BytePosition caret) {
        Ask(QsciScintillaBase::SCI_GOTOPOS, caret);
        Editor->ExecuteCommand(EditorCommand::GoToMatchingBracket);
        return Ask(QsciScintillaBase::SCI_GETCURRENTPOS);
    }

    ScintillaText Text{*Editor};
    ScintillaColouring Colouring{Text};
};

} // namespace

TEST_F(Brackets, OfAllKindsMatchOverNestedOnes) {
    LoadColoured("a(b(c)[d]{e\n})");
    EXPECT_EQ(PartnerAt(1), 13);
    EXPECT_EQ(PartnerAt(14), 1);
    EXPECT_EQ(PartnerAt(3), 5);
    EXPECT_EQ(PartnerAt(7), 8);
    EXPECT_EQ(PartnerAt(9), 12);
    EXPECT_EQ(PartnerAt(0), Nowhere);
}

TEST_F(Brackets, AreLookedForOnBothSidesOfTheCaret) {
    LoadColoured("x(a)");
    EXPECT_EQ(PartnerAt(1), 3);
    EXPECT_EQ(PartnerAt(2), 3);
    EXPECT_EQ(PartnerAt(3), 1);
    EXPECT_EQ(PartnerAt(4), 1);
}

TEST_F(Brackets, WithoutAPartnerAreTold) {
    LoadColoured("a(b\nc]");
    EXPECT_EQ(ResultAt(1), Result::Missing);
    EXPECT_EQ(ResultAt(6), Result::Missing);
    EXPECT_EQ(ResultAt(3), Result::None);
}

TEST_F(Brackets, InStringsAndCommentsDoNotMatchThoseInCode) {
    LoadColoured("f(\")\" /* ) */ // )\n)");
    EXPECT_EQ(PartnerAt(1), 19);
    EXPECT_EQ(PartnerAt(20), 1);
}

TEST_F(Brackets, InAStringOrCommentMatchWithinIt) {
    LoadColoured("\"(a)\" \"(\" \")\" // (b)\n/* (\n) */");
    EXPECT_EQ(PartnerAt(1), 3);
    EXPECT_EQ(PartnerAt(17), 19);
    EXPECT_EQ(PartnerAt(24), 26);
    EXPECT_EQ(ResultAt(7), Result::None);
    EXPECT_EQ(ResultAt(12), Result::None);
}

TEST_F(Brackets, MatchFarBelowTheShownLines) {
    LoadColoured("f(" + QByteArray("\")\" // )\n").repeated(5000) + ")");
    EXPECT_EQ(PartnerAt(1), 2 + 9 * 5000);
}

TEST_F(Brackets, MatchWithColouringSwitchedOffAndWithoutALanguage) {
    LoadColoured("f(\")\")");
    Editor->SetColorSyntax(false);
    EXPECT_EQ(PartnerAt(1), 5);
    Colouring.SetRules(nullptr, LanguageChange::Everything);
    EXPECT_EQ(PartnerAt(1), 3);
}

TEST_F(Brackets, TooFarAwayAreNeitherFoundNorMissed) {
    LoadColoured("(" + QByteArray(200'000, 'x') + ")");
    EXPECT_EQ(ResultAt(0), Result::None);
    EXPECT_EQ(ResultAt(200'002), Result::None);
}

TEST_F(Brackets, AreLookedForInAVeryLongLine) {
    LoadColoured(QByteArray(10'000'000, '('));
    Ask(QsciScintillaBase::SCI_SETEMPTYSELECTION, 5'000'000);
    EXPECT_EQ(FindBrackets(Text, Colouring).Result, Result::None);
    Ask(QsciScintillaBase::SCI_INSERTTEXT, 5'000'001, reinterpret_cast<std::intptr_t>(")"));
    EXPECT_EQ(FindBrackets(Text, Colouring).Other, 5'000'001);
}

TEST_F(Brackets, ShowAsSoonAsTheCaretTouchesThem) {
    Load("f(a)   ");
    Editor->show();
    const auto shown = [this](int column) {
        Editor->SetCaretPos(At(0, column));
        Editor->grab();
        return Editor->viewport()->grab().toImage();
    };
    const auto boxed = [](const QImage &image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(51, 132, 228) ? 1 : 0;
        return count;
    };
    EXPECT_GT(boxed(shown(4)), 20);
    EXPECT_EQ(boxed(shown(7)), 0);
}

TEST_F(Brackets, AreReachedByACommandAndLeftTheSameWay) {
    Load("x(a(b)c)  ");
    EXPECT_EQ(Jump(1), 8);
    EXPECT_EQ(Jump(8), 1);
    EXPECT_EQ(Jump(2), 8);
    EXPECT_EQ(Jump(3), 6);
    EXPECT_EQ(Jump(6), 3);
    EXPECT_EQ(Jump(10), 10);
}

} // namespace Quillbox
