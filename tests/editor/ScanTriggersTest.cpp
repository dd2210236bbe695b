// SPDX-License-Identifier: GPL-3.0-or-later
#include "EditorProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Enter = 13;

class ScanTrigger : public EditorProgram {
  protected:
    ScanTrigger() { Editor().Content = QStringLiteral("a\nb\nc"); }

    /// A key goes down over the present text and comes up over `text`.
    void Type(int keyCode, const QString &text) {
        Follower.txtCode_KeyDown();
        Editor().Content = text;
        Follower.txtCode_KeyUp(keyCode);
    }
    /// What Scanning is while a scan runs over lines that yield.
    std::vector<bool> ScanningDuring(const std::function<void()> &action) {
        std::vector<bool> seen;
        Events.WhileYielding = [this, &seen] { seen.push_back(Game().Scanning); };
        action();
        Events.WhileYielding = [] {};
        return seen;
    }

    TextFollower Follower = FollowerOf(1);
};

class KeyThatRescans : public ScanTrigger, public testing::WithParamInterface<int> {};

TEST_P(KeyThatRescans, ScansWhenLinesWereAdded) {
    Type(GetParam(), QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_P(KeyThatRescans, ScansWhenLinesWereRemoved) {
    Type(GetParam(), QStringLiteral("ab\nc"));
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_P(KeyThatRescans, DoesNotScanWhenTheLineCountIsTheSame) {
    Type(GetParam(), QStringLiteral("a\nb\nc "));
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_P(KeyThatRescans, DoesNotScanWhileAScanIsPending) {
    Game().Scanning = true;
    Type(GetParam(), QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(CompletedScans(), 0);
}

INSTANTIATE_TEST_SUITE_P(KeyUp, KeyThatRescans, testing::Values(8, Enter, 46),
                         [](const auto &row) { return "Key" + std::to_string(row.param); });

class KeyThatDoesNotRescan : public ScanTrigger, public testing::WithParamInterface<int> {};

TEST_P(KeyThatDoesNotRescan, LeavesTheListsAloneEvenWhenTheLineCountChanged) {
    Type(GetParam(), QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(CompletedScans(), 0);
    EXPECT_FALSE(Game().Scanning);
}

INSTANTIATE_TEST_SUITE_P(KeyUp, KeyThatDoesNotRescan,
                         testing::Values(0, 7, 9, 10, 12, 14, 'A', 'V', 45, 47, 127),
                         [](const auto &row) { return "Key" + std::to_string(row.param); });

TEST_F(ScanTrigger, KeyUpSetsScanningForTheTimeOfTheScan) {
    const auto seen = ScanningDuring([this] { Type(Enter, QStringLiteral("a\n")); });
    EXPECT_THAT(seen, ElementsAre(true, true));
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(ScanTrigger, KeyUpShowsThePositionThenScansThenUpdatesTheQuickHelp) {
    Words.KeywordTable[1] = QStringLiteral("SAY");
    Words.QuickHelpTable[1] = QStringLiteral("say(texto)");
    Editor().Word = QStringLiteral("say");
    Editor().WordClass = TokenClass::Keyword;

    Type(Enter, QString());

    EXPECT_THAT(Log.Calls(), ElementsAre("window.SetPanelText CaretPosition 1 :1",
                                         "languages.RegisterLanguage Blitz3D",
                                         "window.SetPanelText QuickHelp say(texto)"));
}

TEST_F(ScanTrigger, KeyDownCountsNoLinesWhileTheHelpPageIsActive) {
    Follower.txtCode_KeyDown(); // three lines
    Registry.CurrentIndex = 0;
    Editor().Content = QStringLiteral("a\nb\nc\nd");
    Follower.txtCode_KeyDown();
    Registry.CurrentIndex = 1;

    Follower.txtCode_KeyUp(Enter);

    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ScanTrigger, KeyUpDoesNotScanWhileTheHelpPageIsActive) {
    Follower.txtCode_KeyDown();
    Registry.CurrentIndex = 0;
    Editor().Content = QStringLiteral("a");

    Follower.txtCode_KeyUp(Enter);

    EXPECT_THAT(Log.Calls(), ElementsAre("window.SetPanelText CaretPosition 1 :1"));
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(ScanTrigger, PaintScansTheCurrentDocument) {
    Editor().Content = QStringLiteral("process Main()");
    Follower.Form_Paint();
    EXPECT_THAT(Functions(), ElementsAre("Main"));
}

TEST_F(ScanTrigger, EveryPaintScansAgain) {
    Follower.Form_Paint();
    Follower.Form_Paint();
    EXPECT_EQ(CompletedScans(), 2);
}

TEST_F(ScanTrigger, PaintSetsScanningForTheTimeOfTheScan) {
    const auto seen = ScanningDuring([this] { Follower.Form_Paint(); });
    EXPECT_THAT(seen, ElementsAre(true, true, true));
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(ScanTrigger, PaintDoesNotScanWhileAScanIsPending) {
    Game().Scanning = true;
    Follower.Form_Paint();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(ScanTrigger, PaintDoesNotScanWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    Follower.Form_Paint();
    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(ScanTrigger, PaintScansTheCurrentDocumentEvenWhenAnotherWindowIsPainted) {
    Open({"/j/otro.prg"});
    EditorOf(2).Content = QStringLiteral("process Otro()");
    Follower.Form_Paint();
    EXPECT_THAT(Functions(), ElementsAre("Otro"));
}

TEST_F(ScanTrigger, FirstPaintWithAllListsOffLeavesScanningSetForGood) {
    Options.ShowFunctions = Options.ShowLabels = Options.ShowTypes = false;
    Follower.Form_Paint();
    EXPECT_TRUE(Game().Scanning);

    Options.ShowFunctions = true;
    Follower.Form_Paint();
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(ScanTrigger, ACompletedScanAfterSwitchingAListOnEndsThePendingScan) {
    Options.ShowFunctions = Options.ShowLabels = Options.ShowTypes = false;
    Follower.Form_Paint();
    Options.ShowLabels = true;

    Scanner.ScanSymbols();

    EXPECT_FALSE(Game().Scanning);
}

/// A change in the text: the tables hold a function at line 2 and a type at line 5.
class ChangeTrigger : public ScanTrigger {
  protected:
    ChangeTrigger() {
        Game().FunctionNames[0] = QStringLiteral("Main");
        Game().FunctionLines[0] = QStringLiteral("2");
        Game().TypeNames[0] = QStringLiteral("Player");
        Game().TypeLines[0] = QStringLiteral("5");
    }

    void ChangeAtLine(int line) {
        Editor().Selection = {{{line}, {3}}, {{line}, {3}}};
        Follower.txtCode_Change();
    }
};

TEST_F(ChangeTrigger, ScansOnTheLineOfAFunction) {
    ChangeAtLine(2);
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, ScansOnTheLineOfAType) {
    ChangeAtLine(5);
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, DoesNotScanOnOtherLines) {
    for (const int line : {0, 1, 3, 4, 6, 22, 52})
        ChangeAtLine(line);
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(ChangeTrigger, LooksAtTheLineWhereTheSelectionStarts) {
    Editor().Selection = {{{2}, {0}}, {{4}, {0}}};
    Follower.txtCode_Change();
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, IgnoresTheLineWhereTheSelectionEnds) {
    Editor().Selection = {{{1}, {0}}, {{2}, {0}}};
    Follower.txtCode_Change();
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(ChangeTrigger, ScansEvenWhileAScanIsPendingAndEndsThat) {
    Game().Scanning = true;
    ChangeAtLine(2);
    EXPECT_EQ(CompletedScans(), 1);
    EXPECT_FALSE(Game().Scanning);
}

TEST_F(ChangeTrigger, DoesNotSetScanning) {
    const auto seen = ScanningDuring([this] { ChangeAtLine(2); });
    EXPECT_THAT(seen, ElementsAre(false, false, false));
}

TEST_F(ChangeTrigger, ScansOnceWhenSeveralEntriesStandOnTheLine) {
    Game().FunctionNames[1] = QStringLiteral("Main");
    Game().FunctionLines[1] = QStringLiteral("2");
    Game().TypeLines[0] = QStringLiteral("2");
    ChangeAtLine(2);
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, LooksUpToTheLastEntry) {
    for (int entry = 0; entry <= 255; ++entry) {
        Game().FunctionNames[entry] = QStringLiteral("F");
        Game().FunctionLines[entry] = QString::number(100 + entry);
    }
    ChangeAtLine(355);
    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, StopsLookingAtTheFirstEmptyName) {
    Game().FunctionNames[1] = QString();
    Game().FunctionNames[2] = QStringLiteral("Detras");
    Game().FunctionLines[2] = QStringLiteral("7");
    ChangeAtLine(7);
    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(ChangeTrigger, FindsEntriesThatALongerEarlierScanLeftBehind) {
    Editor().Content = QStringLiteral("process A\nprocess B\nx");
    Scanner.ScanSymbols();
    Editor().Content = QStringLiteral("process A\nx\nx");
    Scanner.ScanSymbols();
    Log.Clear();

    ChangeAtLine(1);

    EXPECT_EQ(CompletedScans(), 1);
}

TEST_F(ChangeTrigger, DoesNotScanWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    ChangeAtLine(2);
    EXPECT_EQ(CompletedScans(), 0);
}

} // namespace
} // namespace Quillbox
