// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsProgram.h"
#include "base/Paths.h"
#include "fakes/ErrorNumber.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;

class TheButtons : public SettingsProgram {
  protected:
    /// What happens around the dialog, without the lists.
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"window.Hide", "window.Show", "window.Unload", "editor.SetFocus",
                            "events.", "programs.", "dialogs."});
    }
    void ChooseColor(Color color) {
        Questions.Colors = {color};
        Rules.cmdCambiarColor_Click();
        Log.Clear();
    }
};

TEST_F(TheButtons, AcceptStoresAndCloses) {
    Load();
    ChooseColor({99});
    Rules.cmdAceptar_Click();
    EXPECT_EQ(Options.KeywordsColor, Color{99});
    EXPECT_THAT(Steps(), ElementsAre("window.Unload"));
}

TEST_F(TheButtons, CancelClosesAndStoresNothing) {
    Load();
    const Settings before = Options;
    ChooseColor({99});
    Enter(SettingsText::CompilerPath, "/j/FXC.exe");
    Rules.cmdCancelar_Click();
    EXPECT_EQ(Options, before);
    EXPECT_THAT(Steps(), ElementsAre("window.Unload"));
}

TEST_F(TheButtons, ApplyHidesTheDialogWhileTheCurrentEditorTakesTheSettings) {
    Open({"/j/uno.prg", "/j/dos.prg"});
    Load();
    Rules.cmdAplicar_Click();
    EXPECT_THAT(Steps(), ElementsAre("window.Hide", "editor.SetFocus",
                                     "events.ProcessPendingEvents", "window.ShowAgain"));
}

TEST_F(TheButtons, ApplyStoresBeforeTheDialogIsHidden) {
    Open({"/j/uno.prg"});
    Load();
    ChooseColor({99});
    std::optional<Color> whilePumping;
    Events.WhilePumping = [&] { whilePumping = Options.KeywordsColor; };
    Rules.cmdAplicar_Click();
    EXPECT_EQ(whilePumping, Color{99});
    EXPECT_EQ(Log.Calls().back(), "window.ShowAgain");
}

TEST_F(TheButtons, ApplyGivesNoEditorTheKeyboardOnTheHelpPage) {
    Open({"/j/uno.prg"});
    Registry.CurrentIndex = 0;
    Load();
    Rules.cmdAplicar_Click();
    EXPECT_THAT(Steps(),
                ElementsAre("window.Hide", "events.ProcessPendingEvents", "window.ShowAgain"));
}

TEST_F(TheButtons, ApplyWithACurrentDocumentOutsideTheTableIsRunTimeError9) {
    Load();
    Registry.CurrentIndex = 1001;
    EXPECT_EQ(ErrorNumberOf([this] { Rules.cmdAplicar_Click(); }), 9);
}

TEST_F(TheButtons, ApplyKeepsWhatTheDialogHoldsForTheNextChange) {
    Load();
    ChooseColor({99});
    Window.SelectStyle(4);
    Rules.cmdAplicar_Click();
    Window.SelectItem(1);
    ChooseColor({77});
    Window.SelectItem(0);
    EXPECT_EQ(Window.Sample, Color{99});
    EXPECT_EQ(Window.Style, 4);
    Rules.cmdAplicar_Click();
    EXPECT_EQ(Options.KeywordsColor, Color{99});
    EXPECT_EQ(Options.KeywordsStyle, 4);
    EXPECT_EQ(Options.NumbersColor, Color{77});
}

TEST_F(TheButtons, CancelKeepsWhatWasAppliedBefore) {
    Load();
    ChooseColor({99});
    Rules.cmdAplicar_Click();
    ChooseColor({77});
    Rules.cmdCancelar_Click();
    EXPECT_EQ(Options.KeywordsColor, Color{99});
}

TEST_F(TheButtons, HelpStartsTheExplorerWithThePageUnquotedAndMaximised) {
    Load();
    Rules.cmdAyuda_Click();
    const std::string page =
        (QStringLiteral("/q/Ayuda") + PathSeparator + QStringLiteral("HowTo.htm")).toStdString();
    EXPECT_THAT(Log.Calls(), ElementsAre("programs.Start explorer.exe " + page + " Maximized"));
}

TEST_F(TheButtons, HelpFailsWithRunTimeError53WithoutAnExplorer) {
    Load();
    Launcher.Missing = true;
    EXPECT_EQ(ErrorNumberOf([this] { Rules.cmdAyuda_Click(); }), 53);
}

} // namespace
} // namespace Quillbox
