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
                ElementsAre("editor.SetColorSyntax true",     //
                            "editor.SetColor 14 101",         // comments
                            "editor.SetColor 8 102",          // keywords
                            "editor.SetColor 20 102",         // user words
                            "editor.SetColor 6 103",          // numbers
                            "editor.SetColor 10 104",         // operators
                            "editor.SetColor 16 105",         // strings
                            "editor.SetColor 4 106",          // text
                            "editor.SetColor 15 107",         // the backgrounds, same order
                            "editor.SetColor 9 107",          //
                            "editor.SetColor 21 107",         //
                            "editor.SetColor 7 107",          //
                            "editor.SetColor 11 107",         //
                            "editor.SetColor 17 107",         //
                            "editor.SetColor 5 107",          //
                            "editor.SetColor 0 107",          // window
                            "editor.SetColor 30 150",         // highlighted line: red 150
                            "editor.SetFontName Courier New", //
                            "editor.SetFontSize 10",          //
                            "editor.SetFontStyle 5 11",       // comments
                            "editor.SetFontStyle 2 12",       // keywords
                            "editor.SetFontStyle 8 12",       // user words
                            "editor.SetFontStyle 1 13",       // numbers
                            "editor.SetFontStyle 3 14",       // operators
                            "editor.SetFontStyle 6 15",       // strings
                            "editor.SetFontStyle 0 16",       // text
                            "editor.SetTabSize 4",            //
                            "editor.SetLineNumbers true"));
}

TEST_F(ApplyingEditorSettings, EmptiesTheQuickHelpPanelFirstWhenQuickHelpIsOff) {
    Settings settings = DistinctSettings();
    settings.ShowQuickHelp = false;

    ApplyEditorSettings(WindowOf(1), settings);

    ASSERT_GE(Log.Calls().size(), 2U);
    EXPECT_EQ(Log.Calls()[0], "window.SetPanelText 1 ");
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

    EXPECT_THAT(Log.Calls(), testing::Contains("editor.SetFontStyle 0 255"));
}

} // namespace
} // namespace Quillbox
