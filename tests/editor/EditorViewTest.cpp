// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorView.h"

#include "EditorProgram.h"
#include "editor/ApplyEditorSettings.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewOfADocument : public EditorProgram {
  protected:
    std::vector<std::string> CallsOfApplyEditorSettings() {
        Log.Clear();
        ApplyEditorSettings(WindowOf(1), Options);
        const std::vector<std::string> calls = Log.Calls();
        Log.Clear();
        return calls;
    }
    std::string Panel(StatusPanel panel) { return WindowOf(1).PanelTexts[panel].toStdString(); }
    void PutCaretAt(int line, int column) {
        Editor().Selection = {{{line}, {column}}, {{line}, {column}}};
    }

    EditorView View = ViewOf(1);
    TextFollower Follower = FollowerOf(1);
};

TEST_F(ViewOfADocument, LoadsLanguageThenFixedColoursThenSettings) {
    std::vector<std::string> expected = {"editor.SetLanguage Blitz3D",
                                         "editor.SetColor MarginDivider 9868950", // grey 150
                                         "editor.SetColor Margin 13158600"};      // grey 200
    std::ranges::copy(CallsOfApplyEditorSettings(), std::back_inserter(expected));

    View.Form_Load();

    EXPECT_EQ(Log.Calls(), expected);
}

TEST_F(ViewOfADocument, EmptiesTheQuickHelpPanelOnLoadWhenQuickHelpIsOff) {
    Options.ShowQuickHelp = false;
    WindowOf(1).PanelTexts[StatusPanel::QuickHelp] = QStringLiteral("say(texto)");

    View.Form_Load();

    EXPECT_EQ(Panel(StatusPanel::QuickHelp), "");
}

TEST_F(ViewOfADocument, AppliesTheSettingsAgainWhenTheEditorReceivesTheFocus) {
    Options.TabSize = 7;
    const auto expected = CallsOfApplyEditorSettings();

    View.txtCode_GotFocus();

    EXPECT_EQ(Log.Calls(), expected);
}

TEST_F(ViewOfADocument, ShowsTheFirstPositionAsOneOne) {
    PutCaretAt(0, 0);
    Follower.txtCode_KeyUp('A');
    EXPECT_EQ(Panel(StatusPanel::CaretPosition), "1 :1");
}

TEST_F(ViewOfADocument, ShowsTheCaretPositionWhenAKeyIsReleased) {
    PutCaretAt(11, 4);
    Follower.txtCode_KeyUp('A');
    EXPECT_EQ(Panel(StatusPanel::CaretPosition), "12 :5");
}

TEST_F(ViewOfADocument, ShowsTheCaretPositionWhenAMouseButtonIsReleased) {
    PutCaretAt(11, 4);
    Follower.txtCode_MouseUp();
    EXPECT_EQ(Panel(StatusPanel::CaretPosition), "12 :5");
}

TEST_F(ViewOfADocument, ShowsTheEndOfASelectionAsTheCaretPosition) {
    Editor().Selection = {{{3}, {9}}, {{1000}, {99}}};
    Follower.txtCode_MouseUp();
    EXPECT_EQ(Panel(StatusPanel::CaretPosition), "1001 :100");
}

TEST_F(ViewOfADocument, UpdatesTheQuickHelpAfterThePositionWhenAMouseButtonIsReleased) {
    Words.KeywordTable[1] = QStringLiteral("SAY");
    Words.QuickHelpTable[1] = QStringLiteral("say(texto)");
    Editor().Word = QStringLiteral("say");
    Editor().WordClass = TokenClass::Keyword;

    Follower.txtCode_MouseUp();

    EXPECT_THAT(Log.Calls(), ElementsAre("window.SetPanelText CaretPosition 1 :1",
                                         "window.SetPanelText QuickHelp say(texto)"));
}

TEST_F(ViewOfADocument, DoesNotScanWhenAMouseButtonIsReleased) {
    Follower.txtCode_KeyDown();
    Editor().Content = QStringLiteral("process Main()\n");

    Follower.txtCode_MouseUp();

    EXPECT_EQ(CompletedScans(), 0);
}

TEST_F(ViewOfADocument, EnablesTheModifiedPanelWhileTheEditorReportsChanges) {
    Editor().Modified = true;
    Follower.txtCode_Change();
    EXPECT_THAT(Log.Calls(), ElementsAre("window.EnablePanel Modified true"));
}

TEST_F(ViewOfADocument, DisablesTheModifiedPanelWhenTheChangesAreUndone) {
    Editor().Modified = false;
    Follower.txtCode_Change();
    EXPECT_THAT(Log.Calls(), ElementsAre("window.EnablePanel Modified false"));
}

TEST_F(ViewOfADocument, RescansAfterTheModifiedPanelWhenADeclarationLineChanges) {
    Editor().Content = QStringLiteral("process Main()");
    Scanner.ScanSymbols();
    Editor().Content = QStringLiteral("process Maine()");
    Editor().Modified = true;
    Log.Clear();

    Follower.txtCode_Change();

    EXPECT_EQ(Log.Calls().front(), "window.EnablePanel Modified true");
    EXPECT_THAT(Functions(), ElementsAre("Maine"));
}

TEST_F(ViewOfADocument, OpensTheEditMenuOnARightClick) {
    View.txtCode_RClick();
    EXPECT_THAT(Log.Calls(), ElementsAre("main.PopUpEditMenu"));
}

TEST_F(ViewOfADocument, SelectsAllOnControlEWithTheControlKeyHeld) {
    Events.CtrlDown = true;
    EXPECT_TRUE(View.txtCode_KeyPress(5));
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.ExecuteCommand SelectAll"));
}

TEST_F(ViewOfADocument, IgnoresCharacterFiveWithoutTheControlKey) {
    Events.CtrlDown = false;
    EXPECT_FALSE(View.txtCode_KeyPress(5));
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(ViewOfADocument, LeavesOtherControlCharactersToTheEditor) {
    Events.CtrlDown = true;
    for (const int code : {0, 1, 4, 6, 13, 69, 101})
        EXPECT_FALSE(View.txtCode_KeyPress(code)) << code;
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

} // namespace
} // namespace Quillbox
