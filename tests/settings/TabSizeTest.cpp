// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;

class TheTabSize : public SettingsProgram {
  protected:
    TheTabSize() { Load(); }

    void Enter(const QString &text) { SettingsProgram::Enter(SettingsText::TabSize, text); }
};

TEST_F(TheTabSize, TakesDigitsAndTheColonAndNoOtherCharacter) {
    for (int code = 0; code <= 0xFFFF; ++code)
        EXPECT_EQ(Rules.txtTabSize_KeyPress(code), code >= 48 && code <= 58) << code;
}

TEST_F(TheTabSize, DiscardsBackspace) { EXPECT_FALSE(Rules.txtTabSize_KeyPress(8)); }

TEST_F(TheTabSize, MakesTheSpinnerFollow) {
    Enter("12");
    EXPECT_EQ(Window.Spinner, 12);
    EXPECT_EQ(TabSizeText(), "12");
}

TEST_F(TheTabSize, BecomesTheLargestWhenItIsTooLarge) {
    for (const char *text : {"256", "300", "99999999999999999999"}) {
        Enter("3");
        Enter(text);
        EXPECT_EQ(TabSizeText(), "255") << text;
        EXPECT_EQ(Window.Spinner, 255);
    }
}

TEST_F(TheTabSize, BecomesOneWhenItIsEmptiedOrNoNumber) {
    for (const char *text : {"", "0", ":", "abc", "-5", "0.4"}) {
        Enter("3");
        Enter(text);
        EXPECT_EQ(TabSizeText(), "1") << text;
        EXPECT_EQ(Window.Spinner, 1);
    }
}

TEST_F(TheTabSize, HoldsItsOwnLimits) {
    for (const char *text : {"1", "255"}) {
        Enter(text);
        EXPECT_EQ(TabSizeText(), text);
    }
}

TEST_F(TheTabSize, IsTheNumberBeforeAColon) {
    Enter("3:");
    EXPECT_EQ(TabSizeText(), "3:");
    EXPECT_EQ(Window.Spinner, 3);
    Store();
    EXPECT_EQ(Options.TabSize, 3);
}

TEST_F(TheTabSize, LosesWhatFollowsItsNumberWhenTheSpinnerMoves) {
    Enter("5:");
    EXPECT_EQ(Window.Spinner, 5);
    EXPECT_EQ(TabSizeText(), "5");
}

TEST_F(TheTabSize, IsRoundedToAWholeNumber) {
    Enter("7.6");
    EXPECT_EQ(Window.Spinner, 8);
    Store();
    EXPECT_EQ(Options.TabSize, 8);
}

TEST_F(TheTabSize, FollowsTheSpinner) {
    Window.SetTabSpinner(4);
    EXPECT_EQ(TabSizeText(), "4");
    EXPECT_THAT(Log.Calls(), ElementsAre("window.SetTabSpinner 4", "window.SetText 2 4",
                                         "window.SetTabSpinner 4"));
}

TEST_F(TheTabSize, GetsTheKeyboardWhenItsSpinnerSpins) {
    Rules.spnTabSize_SpinUp();
    Rules.spnTabSize_SpinDown();
    EXPECT_THAT(Log.Calls(), ElementsAre("window.FocusTabSize", "window.FocusTabSize"));
}

} // namespace
} // namespace Quillbox
