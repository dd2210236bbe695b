// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ApplyEditorSettings.h"

#include "EditorProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;

/// Every field with a value of its own, so that no slot can get another one's.
Settings DistinctSettings() {
    Settings settings;
    settings.ShowQuickHelp = true;
    settings.ColorSyntax = true;
    settings.CommentsColor = {101};
    settings.KeywordsColor = {102};
    settings.NumbersColor = {103};
    settings.OperatorsColor = {104};
    settings.StringColor = {105};
    settings.TextColor = {106};
    settings.BackgroundColor = {107};
    settings.CommentsStyle = 11;
    settings.KeywordsStyle = 12;
    settings.NumbersStyle = 13;
    settings.OperatorsStyle = 14;
    settings.StringsStyle = 15;
    settings.TextStyle = 16;
    settings.Font = QStringLiteral("Courier New");
    settings.FontSize = 10;
    settings.TabSize = 4;
    settings.LineNumbers = true;
    return settings;
}

using ApplyingEditorSettings = EditorProgram;

TEST_F(ApplyingEditorSettings, SetsEverySlotAndClassInTheFixedOrder) {
    ApplyEditorSettings(WindowOf(1), DistinctSettings());

    EXPECT_THAT(Log.Calls(),
                ElementsAre("editor.SetColorSyntax true",             //
                            "editor.SetColor Comment 101",            // comments
                            "editor.SetColor Keyword 102",            // keywords
                            "editor.SetColor UserWord 102",           // user words
                            "editor.SetColor Number 103",             // numbers
                            "editor.SetColor Operator 104",           // operators
                            "editor.SetColor String 105",             // strings
                            "editor.SetColor Text 106",               // text
                            "editor.SetColor CommentBackground 107",  // the backgrounds, same order
                            "editor.SetColor KeywordBackground 107",  //
                            "editor.SetColor UserWordBackground 107", //
                            "editor.SetColor NumberBackground 107",   //
                            "editor.SetColor OperatorBackground 107", //
                            "editor.SetColor StringBackground 107",   //
                            "editor.SetColor TextBackground 107",     //
                            "editor.SetColor Window 107",             // window
                            "editor.SetColor HighlightedLine 150",    // highlighted line: red 150
                            "editor.SetFontName Courier New",         //
                            "editor.SetFontSize 10",                  //
                            "editor.SetFontStyle Comment 11",         // comments
                            "editor.SetFontStyle Keyword 12",         // keywords
                            "editor.SetFontStyle UserWord 12",        // user words
                            "editor.SetFontStyle Number 13",          // numbers
                            "editor.SetFontStyle Operator 14",        // operators
                            "editor.SetFontStyle String 15",          // strings
                            "editor.SetFontStyle Text 16",            // text
                            "editor.SetTabSize 4",                    //
                            "editor.SetLineNumbers true"));
}

TEST_F(ApplyingEditorSettings, EmptiesTheQuickHelpPanelFirstWhenQuickHelpIsOff) {
    Settings settings = DistinctSettings();
    settings.ShowQuickHelp = false;

    ApplyEditorSettings(WindowOf(1), settings);

    ASSERT_GE(Log.Calls().size(), 2U);
    EXPECT_EQ(Log.Calls()[0], "window.SetPanelText QuickHelp ");
    EXPECT_EQ(Log.Calls()[1], "editor.SetColorSyntax true");
}

TEST_F(ApplyingEditorSettings, LeavesTheQuickHelpPanelAloneWhenQuickHelpIsOn) {
    WindowOf(1).PanelTexts[StatusPanel::QuickHelp] = QStringLiteral("say(texto)");

    ApplyEditorSettings(WindowOf(1), DistinctSettings());

    EXPECT_EQ(WindowOf(1).PanelTexts[StatusPanel::QuickHelp], QString("say(texto)"));
}

TEST_F(ApplyingEditorSettings, CanSwitchColouringAndLineNumbersOff) {
    Settings settings = DistinctSettings();
    settings.ColorSyntax = false;
    settings.LineNumbers = false;

    ApplyEditorSettings(WindowOf(1), settings);

    EXPECT_EQ(Log.Calls().front(), "editor.SetColorSyntax false");
    EXPECT_EQ(Log.Calls().back(), "editor.SetLineNumbers false");
}

TEST_F(ApplyingEditorSettings, PassesUnknownStyleNumbersOnUnchanged) {
    Settings settings = DistinctSettings();
    settings.TextStyle = 255;

    ApplyEditorSettings(WindowOf(1), settings);

    EXPECT_THAT(Log.Calls(), testing::Contains("editor.SetFontStyle Text 255"));
}

} // namespace
} // namespace Quillbox
