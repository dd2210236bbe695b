// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsProgram.h"
#include "fakes/HoldsInOrder.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;

class TheOpenedDialog : public SettingsProgram {};

/// Further check boxes may stand between.
TEST_F(TheOpenedDialog, ShowsEverythingInItsOrder) {
    Options.ColorSyntax = true;
    Options.ShowFunctions = true;
    Options.ShowTypes = true;
    Rules.Form_Load();
    EXPECT_THAT(Log.Calls(),
                HoldsInOrder(std::vector<std::string>{
                    "window.SetText 0 C:\\Fenix\\FXC.exe", "window.SetText 1 C:\\Fenix\\index.html",
                    "window.SetChecked chkColorSyntax true",
                    // The text brings the spinner along, which repeats the text.
                    "window.SetText 2 3", "window.SetTabSpinner 3", "window.SetText 2 3",
                    "window.SetChecked chkLineNumbers false", "window.SetChecked chkFunciones true",
                    "window.SetChecked chkLabels false", "window.SetChecked chkTypes true",
                    "window.SetChecked chkQuickHelp false", "window.SetTabSpinner 3",
                    "window.SelectItem 0", "window.SetSample 1", "window.EnableStyles true",
                    "window.SelectStyle 1", "window.SetSample 1", "window.EnableStyles true",
                    "window.SetFontSample 10 Courier New"}));
}

TEST_F(TheOpenedDialog, ShowsEachCheckBoxFromItsOwnSetting) {
    for (const auto &[checkedBox, field] : CheckBoxes) {
        Options.*field = true;
        Rules.Form_Load();
        for (const auto &[box, other] : CheckBoxes)
            EXPECT_EQ(Window.Checks[box], std::string_view(box) == checkedBox) << box;
        Options.*field = false;
    }
}

TEST_F(TheOpenedDialog, SelectsTheKeywordsWithTheirColourAndStyle) {
    Load();
    EXPECT_EQ(Window.Item, 0);
    EXPECT_EQ(Window.Sample, Color{1});
    EXPECT_EQ(Window.Style, 1);
    EXPECT_TRUE(Window.StylesEnabled);
}

TEST_F(TheOpenedDialog, ShowsTheFontAsASampleOfItself) {
    Load();
    EXPECT_EQ(Window.FontCaption, "10 Courier New");
    EXPECT_EQ(Window.Font.Name, "Courier New");
    EXPECT_EQ(Window.Font.Size, 10);
}

TEST_F(TheOpenedDialog, ChangesNoSetting) {
    const Settings before = Options;
    Load();
    EXPECT_EQ(Options, before);
}

TEST_F(TheOpenedDialog, HoldsAStoredTabSizeOfNothingToOneColumn) {
    Options.TabSize = 0;
    Load();
    EXPECT_EQ(TabSizeText(), "1");
    EXPECT_EQ(Window.Spinner, 1);
}

TEST_F(TheOpenedDialog, ShowsTheLargestTabSize) {
    Options.TabSize = 255;
    Load();
    EXPECT_EQ(TabSizeText(), "255");
    EXPECT_EQ(Window.Spinner, 255);
}

TEST_F(TheOpenedDialog, KeepsAStyleThatIsInNoEntryUntilThePersonChoosesOne) {
    Options.KeywordsStyle = 9;
    Load();
    EXPECT_EQ(Window.Style, -1);
    Store();
    EXPECT_EQ(Options.KeywordsStyle, 9);
}

// Choosing a syntax class

TEST_F(TheOpenedDialog, ShowsColourAndStyleOfEverySyntaxClass) {
    constexpr int styles[] = {1, 2, 3, 4, 0, 2, 0};
    Load();
    for (int row = 1; row < SyntaxItemCount; ++row) {
        Window.SelectItem(row);
        EXPECT_EQ(Window.Sample, Color{row + 1});
        EXPECT_EQ(Window.Style, styles[row]) << row;
        EXPECT_EQ(Window.StylesEnabled, row != BackgroundRow);
    }
}

TEST_F(TheOpenedDialog, ShowsTheColourBeforeTheStyle) {
    Load();
    Window.SelectItem(1);
    EXPECT_THAT(Log.Calls(), ElementsAre("window.SelectItem 1", "window.SetSample 2",
                                         "window.EnableStyles true", "window.SelectStyle 2"));
}

TEST_F(TheOpenedDialog, ShowsTheBackgroundAsNormalInADisabledStyleList) {
    Load();
    Window.SelectItem(BackgroundRow);
    EXPECT_EQ(Window.Style, 0);
    EXPECT_FALSE(Window.StylesEnabled);
    Window.SelectItem(2);
    EXPECT_EQ(Window.Style, 3);
    EXPECT_TRUE(Window.StylesEnabled);
}

TEST_F(TheOpenedDialog, RemembersTheStyleOfEachSyntaxClassAndStoresNoneBefore) {
    Load();
    Window.SelectStyle(4);
    Window.SelectItem(5);
    Window.SelectStyle(3);
    Window.SelectItem(0);
    EXPECT_EQ(Window.Style, 4);
    EXPECT_EQ(Options.KeywordsStyle, 1);
    Store();
    EXPECT_EQ(Options.KeywordsStyle, 4);
    EXPECT_EQ(Options.TextStyle, 3);
    EXPECT_EQ(Options.NumbersStyle, 2);
}

} // namespace
} // namespace Quillbox
