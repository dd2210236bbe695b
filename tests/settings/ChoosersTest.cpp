// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheChoosers : public SettingsProgram {
  protected:
    TheChoosers() { Load(); }

    const FileChooser &Chooser() const { return Questions.Choosers.back(); }
};

/// Choosers that end in an error.
class FailingDialogs : public FakeDialogs {
  public:
    using FakeDialogs::FakeDialogs;

    std::optional<QString> ShowOpen(const FileChooser &) override { throw PathAccessError(); }
    std::optional<Color> ShowColor(Color) override { throw OutOfMemory(); }
    std::optional<FontChoice> ShowFont(const FontChoice &) override { throw OutOfMemory(); }
};

// Colour

TEST_F(TheChoosers, OfferTheColourOfTheSelectedSyntaxClass) {
    Window.SelectItem(3);
    Log.Clear();
    Rules.cmdCambiarColor_Click();
    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowColor 4"));
}

TEST_F(TheChoosers, ShowTheChosenColourAndStoreItLater) {
    Window.SelectItem(3);
    Questions.Colors = {Color{99}};
    Rules.cmdCambiarColor_Click();
    EXPECT_EQ(Window.Sample, Color{99});
    EXPECT_EQ(Options.StringColor, Color{4});
    Store();
    EXPECT_EQ(Options.StringColor, Color{99});
    EXPECT_EQ(Options.OperatorsColor, Color{3});
}

TEST_F(TheChoosers, RememberTheColourOfEachSyntaxClass) {
    Questions.Colors = {Color{99}, Color{77}};
    Rules.cmdCambiarColor_Click();
    Window.SelectItem(BackgroundRow);
    Rules.cmdCambiarColor_Click();
    Window.SelectItem(0);
    EXPECT_EQ(Window.Sample, Color{99});
    Store();
    EXPECT_EQ(Options.KeywordsColor, Color{99});
    EXPECT_EQ(Options.BackgroundColor, Color{77});
}

TEST_F(TheChoosers, LeaveTheColourWhenThePersonCancels) {
    Rules.cmdCambiarColor_Click();
    EXPECT_EQ(Window.Sample, Color{1});
    Store();
    EXPECT_EQ(Options.KeywordsColor, Color{1});
}

// Font

TEST_F(TheChoosers, OfferTheFontThatIsShown) {
    Rules.cmdCambiarFuente_Click();
    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowFont Courier New 10"));
}

TEST_F(TheChoosers, ShowTheChosenFontAndOfferItTheNextTime) {
    Questions.Fonts = {FontChoice{"Liberation Mono", 12}};
    Rules.cmdCambiarFuente_Click();
    EXPECT_EQ(Window.FontCaption, "12 Liberation Mono");
    EXPECT_EQ(Window.Font.Name, "Liberation Mono");
    EXPECT_EQ(Window.Font.Size, 12);
    EXPECT_EQ(Options.Font, "Courier New");
    Log.Clear();
    Rules.cmdCambiarFuente_Click();
    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowFont Liberation Mono 12"));
}

TEST_F(TheChoosers, ShowTheFractionOfASizeAndStoreItRounded) {
    Questions.Fonts = {FontChoice{"Courier", 10.5}};
    Rules.cmdCambiarFuente_Click();
    EXPECT_EQ(Window.FontCaption, "10.5 Courier");
    EXPECT_EQ(Window.Font.Size, 10.5);
    Store();
    EXPECT_EQ(Options.Font, "Courier");
    EXPECT_EQ(Options.FontSize, 10);
}

TEST_F(TheChoosers, LeaveTheFontWhenThePersonCancels) {
    Rules.cmdCambiarFuente_Click();
    EXPECT_EQ(Window.FontCaption, "10 Courier New");
    Store();
    EXPECT_EQ(Options.Font, "Courier New");
    EXPECT_EQ(Options.FontSize, 10);
}

// Files

TEST_F(TheChoosers, LookForTheCompilerFromTheStoredPath) {
    Enter(SettingsText::CompilerPath, "/otro/sitio/FXC.exe");
    Rules.cmdCompilerBrowse_Click();
    EXPECT_EQ(Chooser().Title, "Seleccionar FXC.exe");
    EXPECT_EQ(Chooser().FileName, "C:\\Fenix\\FXC.exe");
    EXPECT_EQ(Chooser().Folder, "C:\\Fenix\\FXC.exe");
    EXPECT_EQ(Chooser().Filter, "Archivo FXC.exe|FXC.exe");
    EXPECT_EQ(Chooser().Flags, FileChooserFlags::None);
}

TEST_F(TheChoosers, LookForTheHelpFromTheStoredPath) {
    Enter(SettingsText::HelpPath, "/otro/sitio/index.html");
    Rules.cmdHelpBrowse_Click();
    EXPECT_EQ(Chooser().Title, "Seleccionar index.html");
    EXPECT_EQ(Chooser().FileName, "C:\\Fenix\\index.html");
    EXPECT_EQ(Chooser().Folder, "C:\\Fenix\\index.html");
    EXPECT_EQ(Chooser().Filter, "Índice de la ayuda (index.html)|index.html");
    EXPECT_EQ(Chooser().Flags, FileChooserFlags::None);
}

TEST_F(TheChoosers, AskForAnExistingOrANewFileToOpen) {
    Rules.cmdCompilerBrowse_Click();
    Rules.cmdHelpBrowse_Click();
    EXPECT_THAT(Log.Calls(),
                ElementsAre("dialogs.ShowOpen Archivo FXC.exe|FXC.exe",
                            "dialogs.ShowOpen Índice de la ayuda (index.html)|index.html"));
}

TEST_F(TheChoosers, PutTheChosenFileIntoItsTextBoxOnly) {
    const Settings before = Options;
    Questions.Choices = {"/j/FXC.exe", "/j/index.html"};
    Rules.cmdCompilerBrowse_Click();
    EXPECT_EQ(Text(SettingsText::CompilerPath), "/j/FXC.exe");
    EXPECT_EQ(Text(SettingsText::HelpPath), "C:\\Fenix\\index.html");
    Rules.cmdHelpBrowse_Click();
    EXPECT_EQ(Text(SettingsText::HelpPath), "/j/index.html");
    EXPECT_EQ(Options, before);
}

TEST_F(TheChoosers, LeaveThePathsWhenThePersonCancels) {
    Enter(SettingsText::CompilerPath, "a medias");
    Rules.cmdCompilerBrowse_Click();
    Rules.cmdHelpBrowse_Click();
    EXPECT_EQ(Text(SettingsText::CompilerPath), "a medias");
    EXPECT_EQ(Text(SettingsText::HelpPath), "C:\\Fenix\\index.html");
}

TEST_F(TheChoosers, CountAsCancelledWithoutAMessageWhenTheyFail) {
    FailingDialogs failing(Log);
    SettingsDialog rules(Window, Options, failing, Effect, Companions);
    Window.Rules = &rules;
    Window.Item = -1;
    rules.Form_Load();
    Log.Clear();
    rules.cmdCambiarColor_Click();
    rules.cmdCambiarFuente_Click();
    rules.cmdCompilerBrowse_Click();
    rules.cmdHelpBrowse_Click();
    EXPECT_THAT(Log.Calls(), IsEmpty());
    const Settings before = Options;
    rules.cmdAceptar_Click();
    EXPECT_EQ(Options.KeywordsColor, before.KeywordsColor);
    EXPECT_EQ(Options.Font, before.Font);
    EXPECT_EQ(Options.FenixCPath, before.FenixCPath);
}

} // namespace
} // namespace Quillbox
