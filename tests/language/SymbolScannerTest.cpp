// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/SymbolScanner.h"

#include "editor/EditorProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SymbolScan : public EditorProgram {
  protected:
    void Scan(const char *source) {
        Editor().Content = QString::fromUtf8(source);
        Log.Clear();
        Scanner.ScanSymbols();
    }
    void Show(bool functions, bool labels, bool types) {
        Options.ShowFunctions = functions;
        Options.ShowLabels = labels;
        Options.ShowTypes = types;
    }
    void FillLists() {
        Lists.Items[NavigationList::Functions] = {"f1", "f2"};
        Lists.Items[NavigationList::Labels] = {"l1"};
        Lists.Items[NavigationList::Types] = {"t1", "t2"};
    }
    std::string UserWords() { return Words.LanguageDefinition.UserWords.toStdString(); }
    int CountYields(const char *source) {
        int yields = 0;
        Events.WhileYielding = [&yields] { ++yields; };
        Scan(source);
        return yields;
    }
};

TEST_F(SymbolScan, ListsDeclarationsInLineOrderWithTheirDuplicates) {
    Scan("process Zorro()\n\ntype Punto\nprocess Abeja()\ntype Arma\nprocess Zorro()");
    EXPECT_THAT(Functions(), ElementsAre("Zorro", "Abeja", "Zorro"));
    EXPECT_THAT(Types(), ElementsAre("Punto", "Arma"));
}

TEST_F(SymbolScan, RecordsZeroBasedLinesAsDecimalTexts) {
    Scan("process A\nx\nx\ntype B\nprocess C\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx\nprocess D");
    EXPECT_EQ(Game().FunctionLines[0], QString("0"));
    EXPECT_EQ(Game().FunctionLines[1], QString("4"));
    EXPECT_EQ(Game().FunctionLines[2], QString("17"));
    EXPECT_EQ(Game().TypeLines[0], QString("3"));
}

TEST_F(SymbolScan, NeverListsLabels) {
    Lists.Items[NavigationList::Labels] = {"viejo"};
    Scan(".inicio\nlabel inicio\ninicio:\nprocess A");
    EXPECT_THAT(Items(NavigationList::Labels), IsEmpty());
}

TEST_F(SymbolScan, EmptiesTheListsInTheirOrderBeforeItFillsThem) {
    FillLists();
    Scan("type Punto\nprocess Mover()");
    EXPECT_THAT(Log.Calls(),
                ElementsAre("lists.RemoveItem Functions 0", "lists.RemoveItem Functions 0",
                            "lists.RemoveItem Labels 0", "lists.RemoveItem Types 0",
                            "lists.RemoveItem Types 0", "lists.AddItem Types Punto",
                            "lists.AddItem Functions Mover", "languages.RegisterLanguage Blitz3D"));
}

TEST_F(SymbolScan, OfAnEmptyDocumentEmptiesEverythingAndRegistersTheLanguage) {
    FillLists();
    Words.LanguageDefinition.UserWords = QStringLiteral("\nViejo");
    Game().Scanning = true;

    Scan("");

    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_EQ(UserWords(), "");
    EXPECT_EQ(CompletedScans(), 1);
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(SymbolScan, PutsALineFeedBeforeEveryUserWord) {
    Scan("process Main()\ntype Punto\nprocess Mover(x)");
    EXPECT_EQ(UserWords(), "\nMain\nMover");
}

TEST_F(SymbolScan, KeepsEmptyNamesAsUserWords) {
    Scan("process\nprocess Mover(x)");
    EXPECT_EQ(UserWords(), "\n\nMover");
}

TEST_F(SymbolScan, ForgetsTheUserWordsOfTheScanBefore) {
    Scan("process Main()");
    Scan("process Otra()");
    EXPECT_EQ(UserWords(), "\nOtra");
}

TEST_F(SymbolScan, RegistersTheWholeDefinitionWithTheNewUserWords) {
    SetLanguageRules(Words.LanguageDefinition);
    Words.LanguageDefinition.Keywords = QStringLiteral("\nSAY");
    LanguageDefinition expected = Words.LanguageDefinition;
    expected.UserWords = QStringLiteral("\nMain");

    Scan("process Main()");

    EXPECT_EQ(Languages.Registered, expected);
}

TEST_F(SymbolScan, WithoutFunctionsFindsOnlyTypes) {
    Show(false, false, true);
    FillLists();
    Scan("process Main()\ntype Punto\nprocess type");
    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_THAT(Types(), ElementsAre("Punto"));
    EXPECT_EQ(UserWords(), "");
}

TEST_F(SymbolScan, WithoutTypesFindsOnlyFunctions) {
    Show(true, false, false);
    FillLists();
    Scan("process Main()\ntype Punto");
    EXPECT_THAT(Functions(), ElementsAre("Main"));
    EXPECT_THAT(Types(), IsEmpty());
}

TEST_F(SymbolScan, WithOnlyLabelsEmptiesAllListsAndAddsNothing) {
    Show(false, true, false);
    FillLists();
    Scan("process Main()\ntype Punto");
    EXPECT_THAT(Log.Calls(),
                ElementsAre("lists.RemoveItem Functions 0", "lists.RemoveItem Functions 0",
                            "lists.RemoveItem Labels 0", "lists.RemoveItem Types 0",
                            "lists.RemoveItem Types 0", "languages.RegisterLanguage Blitz3D"));
}

TEST_F(SymbolScan, WithAllListsOffDoesNothing) {
    Show(false, false, false);
    FillLists();
    Words.LanguageDefinition.UserWords = QStringLiteral("\nViejo");
    Scan("process Main()\ntype Punto");
    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(UserWords(), "\nViejo");
}

TEST_F(SymbolScan, WithAllListsOffLeavesScanningAsItIs) {
    Show(false, false, false);
    Scan("");
    EXPECT_FALSE(Game().Scanning);
    Game().Scanning = true;
    Scan("");
    EXPECT_TRUE(Game().Scanning);
}

TEST_F(SymbolScan, WhileTheHelpPageIsActiveDoesNothing) {
    FillLists();
    Registry.CurrentIndex = 0;
    Game().Scanning = true;
    Scan("process Main()");
    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_TRUE(Game().Scanning);
}

TEST_F(SymbolScan, LeavesTheEntriesOfALongerEarlierScanBehind) {
    Scan("process A\nprocess B\nprocess C\nprocess D\nprocess E\ntype T\ntype U");
    Scan("process F\nprocess G\nprocess H\ntype V");

    EXPECT_THAT(Functions(), ElementsAre("F", "G", "H"));
    EXPECT_EQ(Game().FunctionNames[2], QString("H"));
    EXPECT_EQ(Game().FunctionNames[3], QString("D"));
    EXPECT_EQ(Game().FunctionNames[4], QString("E"));
    EXPECT_EQ(Game().FunctionLines[4], QString("4"));
    EXPECT_EQ(Game().TypeNames[1], QString("U"));
    EXPECT_EQ(Game().TypeLines[1], QString("6"));
}

TEST_F(SymbolScan, RecordsOfEachKindWhatTheTablesHold) {
    QString source;
    for (int line = 0; line < 300; ++line)
        source += QStringLiteral("process F%1\n").arg(line);
    for (int line = 300; line < 600; ++line)
        source += QStringLiteral("type T%1\n").arg(line);

    Scan(source.toUtf8().constData());

    EXPECT_EQ(Lists.ItemCount(NavigationList::Functions), 256);
    EXPECT_EQ(Lists.ItemCount(NavigationList::Types), 256);
    EXPECT_EQ(Game().FunctionNames[255], QString("F255"));
    EXPECT_EQ(Game().FunctionLines[255], QString("255"));
    EXPECT_EQ(Game().TypeNames[255], QString("T555"));
    EXPECT_EQ(Game().TypeLines[255], QString("555"));
    EXPECT_EQ(Words.LanguageDefinition.UserWords.count(u'\n'), 256);
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(SymbolScan, YieldsAfterEveryCharacterOfAFunctionNameAndNotAfterItsLine) {
    EXPECT_EQ(CountYields("process abc(x)"), 3);
    EXPECT_EQ(CountYields("process (x)"), 0);
}

TEST_F(SymbolScan, YieldsAfterEveryOtherLine) { EXPECT_EQ(CountYields("x\ntype Punto\n"), 3); }

TEST_F(SymbolScan, AsksForTheLineCountOnEveryRound) {
    Editor().Content = QStringLiteral("x");
    Events.WhileYielding = [this] { Editor().Content = QStringLiteral("x\nprocess Nuevo()"); };
    Scanner.ScanSymbols();
    EXPECT_THAT(Functions(), ElementsAre("Nuevo"));
}

/// The help page becomes active during the n-th yield of a scan.
class AbandonedScan : public SymbolScan {
  protected:
    void ScanUntilYield(int last, const char *source) {
        Game().Scanning = true;
        Events.WhileYielding = [this, last] {
            if (++Yields_ == last)
                Registry.CurrentIndex = 0;
        };
        Scan(source);
    }
    int Yields_ = 0;
};

TEST_F(AbandonedScan, EndsAtTheLineWithoutRegisteringTheLanguage) {
    ScanUntilYield(5, "process Main()\nx\nprocess Otra()");
    EXPECT_THAT(Log.Calls(), ElementsAre("lists.AddItem Functions Main"));
    EXPECT_EQ(Yields_, 5);
}

TEST_F(AbandonedScan, LeavesScanningSet) {
    ScanUntilYield(1, "x\ny");
    EXPECT_TRUE(Game().Scanning);
}

TEST_F(AbandonedScan, EndsInTheMiddleOfANameWithoutListingIt) {
    ScanUntilYield(2, "process Main()\nprocess Otra()");
    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(UserWords(), "");
    EXPECT_EQ(Yields_, 2);
}

TEST_F(AbandonedScan, LeavesTheBegunNameInTheTable) {
    Game().FunctionNames[0] = QStringLiteral("Vieja");
    Game().FunctionLines[0] = QStringLiteral("9");
    ScanUntilYield(2, "process Main()\nprocess Otra()");
    EXPECT_EQ(Game().FunctionNames[0], QString("Ma"));
    EXPECT_EQ(Game().FunctionLines[0], QString("9"));
}

TEST_F(AbandonedScan, EndsAfterATypeLineThatItHasRecorded) {
    ScanUntilYield(1, "type Punto\ntype Arma");
    EXPECT_THAT(Types(), ElementsAre("Punto"));
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(SymbolScan, RecordsInWhicheverDocumentIsCurrentAtThatMoment) {
    Open({"/j/otro.prg"});
    Registry.CurrentIndex = 1;
    Game().Scanning = true;
    Registry.Documents[2].Scanning = true;
    Events.WhileYielding = [this] { Registry.CurrentIndex = 2; };

    Scan("x\nprocess Main()\ntype Punto");

    EXPECT_EQ(Registry.Documents[2].FunctionNames[0], QString("Main"));
    EXPECT_EQ(Registry.Documents[2].TypeNames[0], QString("Punto"));
    EXPECT_EQ(Game().FunctionNames[0], QString());
    EXPECT_FALSE(Registry.Documents[2].Scanning);
    EXPECT_TRUE(Game().Scanning);
}

} // namespace
} // namespace Quillbox
