// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/QuickHelp.h"

#include "editor/EditorProgram.h"
#include "fakes/TestRow.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QuickHelpPanel : public EditorProgram {
  protected:
    QuickHelpPanel() {
        SetKeyword(1, "SAY", "say(texto)");
        SetKeyword(2, "LET_ME_ALONE", "let_me_alone()");
    }

    void SetKeyword(int slot, const char *keyword, const char *help) {
        Words.KeywordTable[slot] = QString::fromUtf8(keyword);
        Words.QuickHelpTable[slot] = QString::fromUtf8(help);
    }
    /// The caret comes to a word of the document at `position`. Returns what the panel then shows.
    std::string Show(const char *word, TokenClass tokenClass, int position = 1) {
        EditorOf(position).Word = QString::fromUtf8(word);
        EditorOf(position).WordClass = tokenClass;
        HelpLine.UpdateQuickHelp(WindowOf(position));
        return WindowOf(position).PanelTexts[StatusPanel::QuickHelp].toStdString();
    }
    std::string ShowKeyword(const char *word) { return Show(word, TokenClass::Keyword); }
    std::string ShowWord(const char *word) { return Show(word, TokenClass::Unclassified); }
};

TEST_F(QuickHelpPanel, ShowsTheHelpLineOfAKeyword) { EXPECT_EQ(ShowKeyword("SAY"), "say(texto)"); }

TEST_F(QuickHelpPanel, FindsKeywordsInAnyLetterCase) {
    SetKeyword(3, "Año", "año()");
    EXPECT_EQ(ShowKeyword("Let_Me_ALONE"), "let_me_alone()");
    EXPECT_EQ(ShowKeyword("aÑo"), "año()");
}

TEST_F(QuickHelpPanel, FindsTheKeywordInTheLastSlot) {
    SetKeyword(600, "ULTIMA", "ultima()");
    EXPECT_EQ(ShowKeyword("ultima"), "ultima()");
}

TEST_F(QuickHelpPanel, TakesTheFirstOfTwoEqualKeywords) {
    SetKeyword(5, "DOBLE", "primera");
    SetKeyword(9, "doble", "segunda");
    EXPECT_EQ(ShowKeyword("doble"), "primera");
}

TEST_F(QuickHelpPanel, ComparesWholeKeywords) {
    ShowKeyword("sa");
    ShowKeyword("says");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(QuickHelpPanel, StaysAsItWasForAKeywordWithoutASlot) {
    ShowKeyword("say");
    EXPECT_EQ(ShowKeyword("desconocida"), "say(texto)");
    EXPECT_THAT(Log.Calls(), ElementsAre("window.SetPanelText QuickHelp say(texto)"));
}

TEST_F(QuickHelpPanel, BecomesEmptyForAKeywordWithoutAHelpLine) {
    SetKeyword(3, "BREAK", "");
    ShowKeyword("say");
    EXPECT_EQ(ShowKeyword("break"), "");
}

TEST_F(QuickHelpPanel, MatchesTheFirstFreeSlotWhenAKeywordsWordIsEmpty) {
    ShowKeyword("say");
    Words.QuickHelpTable[3] = QStringLiteral("linea sin palabra");
    EXPECT_EQ(ShowKeyword(""), "linea sin palabra");
}

TEST_F(QuickHelpPanel, AnswersTheSameKeywordFromTheCacheWithoutWalking) {
    ShowKeyword("say");
    SetKeyword(1, "OTRA", "linea nueva del mismo sitio");
    EXPECT_EQ(ShowKeyword("say"), "linea nueva del mismo sitio");
}

TEST_F(QuickHelpPanel, FindsTheCachedWordInAnyLetterCase) {
    ShowKeyword("say");
    Words.KeywordTable[1] = QStringLiteral("OTRA");
    WindowOf(1).PanelTexts.clear();
    EXPECT_EQ(ShowKeyword("SaY"), "say(texto)");
}

TEST_F(QuickHelpPanel, WalksAgainForAnotherKeyword) {
    ShowKeyword("say");
    EXPECT_EQ(ShowKeyword("let_me_alone"), "let_me_alone()");
}

TEST_F(QuickHelpPanel, KeepsTheCacheWhenAKeywordHasNoSlot) {
    ShowKeyword("say");
    ShowKeyword("desconocida");
    Words.KeywordTable[1] = QStringLiteral("OTRA");
    WindowOf(1).PanelTexts.clear();
    EXPECT_EQ(ShowKeyword("say"), "say(texto)");
}

TEST_F(QuickHelpPanel, NeverAnswersAnEmptyWordFromTheCache) {
    ShowKeyword(""); // remembers slot 3, the first free one
    SetKeyword(3, "NUEVA", "nueva()");
    Words.QuickHelpTable[4] = QStringLiteral("linea 4");
    EXPECT_EQ(ShowKeyword(""), "linea 4");
}

TEST_F(QuickHelpPanel, SharesTheCacheBetweenDocuments) {
    ShowKeyword("say");
    Words.KeywordTable[1] = QStringLiteral("OTRA");
    Open({"/j/otro.prg"});
    EXPECT_EQ(Show("say", TokenClass::Keyword, 2), "say(texto)");
}

/// A document whose lines 0, 1 and 2 declare the functions Main, Mover and Saltar.
class DeclarationHelp : public QuickHelpPanel {
  protected:
    DeclarationHelp() {
        Editor().Content = QStringLiteral("process Main()\n"
                                          "process  Mover(x, y)\n"
                                          "process  Saltar(alto)");
        SetFunction(0, "Main", "0");
        SetFunction(1, "Mover", "1");
        SetFunction(2, "Saltar", "2");
    }

    void SetFunction(int entry, const char *name, const char *line) {
        Game().FunctionNames[entry] = QString::fromUtf8(name);
        Game().FunctionLines[entry] = QString::fromUtf8(line);
    }
};

TEST_F(DeclarationHelp, ShowsNothingForTheFirstFunction) {
    ShowWord("Main");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, ShowsTheSecondFunctionsDeclarationFromCharacterTen) {
    EXPECT_EQ(ShowWord("Mover"), "Mover(x, y)");
}

TEST_F(DeclarationHelp, CutsTheFirstLetterOfANameBehindOneBlank) {
    Editor().Content = QStringLiteral("\nprocess Mover(x, y)");
    EXPECT_EQ(ShowWord("Mover"), "over(x, y)");
}

TEST_F(DeclarationHelp, FindsNamesInAnyLetterCase) {
    EXPECT_EQ(ShowWord("sALTAr"), "Saltar(alto)");
}

TEST_F(DeclarationHelp, FindsTheFunctionInTheLastEntry) {
    for (int entry = 3; entry < 255; ++entry)
        SetFunction(entry, "Relleno", "0");
    SetFunction(255, "Ultima", "2");
    EXPECT_EQ(ShowWord("ultima"), "Saltar(alto)");
}

TEST_F(DeclarationHelp, TakesTheFirstOfTwoEqualNames) {
    SetFunction(2, "Mover", "2");
    EXPECT_EQ(ShowWord("mover"), "Mover(x, y)");
}

TEST_F(DeclarationHelp, StopsAtTheFirstEmptyName) {
    SetFunction(1, "", "1");
    ShowWord("Saltar");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, PassesOverAnEmptyNameInTheFirstEntry) {
    SetFunction(0, "", "0");
    EXPECT_EQ(ShowWord("Mover"), "Mover(x, y)");
}

TEST_F(DeclarationHelp, ShowsNothingForAnEmptyWord) {
    ShowWord("");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, ShowsNothingForAWordThatIsNoFunction) {
    ShowWord("Mov");
    ShowWord("Moverse");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, ReadsALineThatIsNoNumberAsTheFirstLine) {
    SetFunction(1, "Mover", "dos");
    EXPECT_EQ(ShowWord("Mover"), "ain()");
}

TEST_F(DeclarationHelp, FindsFunctionsThatALongerEarlierScanLeftBehind) {
    Editor().Content = QStringLiteral("process Main()\nprocess Mover()\nprocess Vieja()");
    Scanner.ScanSymbols();
    Editor().Content = QStringLiteral("process Main()\nprocess Mover()\nalgo que ya no es eso");
    Scanner.ScanSymbols();
    EXPECT_EQ(ShowWord("Vieja"), "ya no es eso");
}

TEST_F(DeclarationHelp, LooksThroughTheCurrentDocumentsFunctions) {
    Open({"/j/otro.prg"});
    EXPECT_EQ(Show("Mover", TokenClass::Unclassified, 2), "");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, ShowsNothingWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    ShowWord("Mover");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(DeclarationHelp, LooksTheFunctionUpAnewEachTime) {
    ShowWord("Mover");
    Editor().Content = QStringLiteral("\nprocess  Mover(z)");
    EXPECT_EQ(ShowWord("Mover"), "Mover(z)");
}

TEST_F(DeclarationHelp, LeavesItsEntryInTheCacheOfTheKeywords) {
    ShowWord("Saltar"); // entry 2
    EXPECT_EQ(ShowKeyword("saltar"), "let_me_alone()");
}

TEST_F(DeclarationHelp, LeavesItsEntryInTheCacheForOtherDocumentsToo) {
    ShowWord("Mover"); // entry 1
    Open({"/j/otro.prg"});
    EXPECT_EQ(Show("MOVER", TokenClass::Keyword, 2), "say(texto)");
}

struct CutRow : TestRow {
    const char *Line;
    const char *Shown;
};

class DeclarationCut : public DeclarationHelp, public testing::WithParamInterface<CutRow> {};

TEST_P(DeclarationCut, BeginsAtCharacterTenWhateverTheKeywordIs) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    SetFunction(1, "Mover", "0");
    EXPECT_EQ(ShowWord("Mover"), GetParam().Shown);
    EXPECT_EQ(Log.Calls().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, DeclarationCut,
    testing::Values(CutRow{"OfNothing", "", ""}, CutRow{"OfOneCharacter", "p", ""},
                    CutRow{"OfSevenCharacters", "1234567", ""},
                    CutRow{"OfEightCharacters", "12345678", ""},
                    CutRow{"OfNineCharacters", "123456789", ""},
                    CutRow{"OfTenCharacters", "1234567890", "0"},
                    CutRow{"ToTheLastBlank", "function Mover()  ", "Mover()  "},
                    CutRow{"OfAccents", "process Ñandú()", "andú()"}),
    RowName);

struct ClassRow : TestRow {
    TokenClass Class;
};

class ClassWithoutHelp : public DeclarationHelp, public testing::WithParamInterface<ClassRow> {};

TEST_P(ClassWithoutHelp, LeavesThePanelAsItWas) {
    Show("say", GetParam().Class);
    Show("Mover", GetParam().Class);
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(TokenClasses, ClassWithoutHelp,
                         testing::Values(ClassRow{"Text", TokenClass::Text},
                                         ClassRow{"Number", TokenClass::Number},
                                         ClassRow{"Operator", TokenClass::Operator},
                                         ClassRow{"Comment", TokenClass::Comment},
                                         ClassRow{"String", TokenClass::String}),
                         RowName);

TEST_F(DeclarationHelp, NeverTouchesThePanelWhenSwitchedOff) {
    Options.ShowQuickHelp = false;
    ShowKeyword("say");
    ShowWord("Mover");
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

} // namespace
} // namespace Quillbox
