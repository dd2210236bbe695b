// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/WordCompletion.h"

#include "state/DocumentRegistry.h"
#include "state/WordFiles.h"

#include <gmock/gmock.h>

namespace Quillbox {

static void PrintTo(const Completion &completion, std::ostream *stream) {
    *stream << completion.Word.toStdString() << " (" << completion.Help.toStdString() << ")";
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Completion Named(const char *word, const char *help) {
    return {QString::fromUtf8(word), QString::fromUtf8(help)};
}

class WordCompletion : public testing::Test {
  protected:
    void AddKeyword(const char *word, const char *help) {
        ++Keywords_;
        Words.KeywordTable[Keywords_] = QString::fromUtf8(word);
        Words.QuickHelpTable[Keywords_] = QString::fromUtf8(help);
    }
    void AddFunction(const char *name, int line) {
        Own.FunctionNames[Counts.Functions] = QString::fromUtf8(name);
        Own.FunctionLines[Counts.Functions++] = QString::number(line);
    }
    void AddType(const char *name, int line) {
        Own.TypeNames[Counts.Types] = QString::fromUtf8(name);
        Own.TypeLines[Counts.Types++] = QString::number(line);
    }
    Completions Collected() const { return CollectCompletions(Words, Own, Counts); }

    LanguageWords Words;
    Document Own;
    SymbolCounts Counts;

  private:
    int Keywords_ = 0;
};

TEST_F(WordCompletion, OffersKeywordsWithTheirQuickHelpInOrder) {
    AddKeyword("Print", "Print texto");
    AddKeyword("Cls", "");
    AddKeyword("asc", "Asc( letra )");
    EXPECT_THAT(Collected(), ElementsAre(Named("asc", "Asc( letra )"), Named("Cls", ""),
                                         Named("Print", "Print texto")));
}

TEST_F(WordCompletion, OffersFunctionsAndTypesOfTheDocumentWithTheirLines) {
    AddFunction("mover", 11);
    AddType("Bola", 0);
    EXPECT_THAT(Collected(), ElementsAre(Named("Bola", "Type del documento, línea 1"),
                                         Named("mover", "Función del documento, línea 12")));
}

TEST_F(WordCompletion, TakesOnlyTheNameOfADeclaration) {
    AddFunction("  mover  ", 1);
    AddType("Bola // redonda", 2);
    AddType("", 3);
    AddType("// nada", 4);
    AddType("Año_2", 5);
    EXPECT_THAT(Collected(), ElementsAre(Named("Año_2", "Type del documento, línea 6"),
                                         Named("Bola", "Type del documento, línea 3"),
                                         Named("mover", "Función del documento, línea 2")));
}

TEST_F(WordCompletion, LeavesOutWhatAnEarlierScanLeftBehindTheNewEntries) {
    AddFunction("nueva", 1);
    AddFunction("vieja", 9);
    AddType("Vieja", 10);
    Counts = {1, 0};
    EXPECT_THAT(Collected(), ElementsAre(Named("nueva", "Función del documento, línea 2")));
}

TEST_F(WordCompletion, OffersEachWordOnceAndAKeywordBeforeASymbol) {
    AddKeyword("Print", "Print texto");
    AddFunction("PRINT", 1);
    AddFunction("otra", 2);
    AddFunction("Otra", 3);
    EXPECT_THAT(Collected(), ElementsAre(Named("otra", "Función del documento, línea 3"),
                                         Named("Print", "Print texto")));
}

TEST_F(WordCompletion, FiltersByTheLettersThatAWordBeginsWithInAnyCase) {
    const Completions candidates = {Named("Ñandú", ""), Named("Print", ""), Named("PrintImage", ""),
                                    Named("Sprint", "")};
    EXPECT_THAT(CompletionsOf(candidates, u"pRiN"),
                ElementsAre(Named("Print", ""), Named("PrintImage", "")));
    EXPECT_THAT(CompletionsOf(candidates, u"ñ"), ElementsAre(Named("Ñandú", "")));
    EXPECT_THAT(CompletionsOf(candidates, u"x"), IsEmpty());
    EXPECT_EQ(CompletionsOf(candidates, u""), candidates);
}

TEST_F(WordCompletion, TakesOverTheRestOfAWordThatItGoesOnWith) {
    EXPECT_EQ(ReplacedBehindCaret(u"Graphics", u"gra", u"PHI"), 3);
    EXPECT_EQ(ReplacedBehindCaret(u"Graphics", u"gra", u"phics"), 5);
    EXPECT_EQ(ReplacedBehindCaret(u"Graphics", u"gra", u"x"), 0);
    EXPECT_EQ(ReplacedBehindCaret(u"Graphics", u"gra", u"phics3D"), 0);
}

TEST_F(WordCompletion, TakesFullTables) {
    for (int index = 1; index <= WordTable::LastIndex; ++index)
        Words.KeywordTable[index] = QStringLiteral("Palabra%1").arg(index * 7919 % 600);
    for (int entry = 0; entry <= SymbolTexts::LastIndex; ++entry)
        AddFunction(qPrintable(QStringLiteral("funcion%1").arg(entry)), entry);
    Completions found = Collected();
    EXPECT_EQ(found.size(), 856u);
    found = CompletionsOf(found, u"f");
    EXPECT_EQ(found.size(), 256u);
}

} // namespace
} // namespace Quillbox
