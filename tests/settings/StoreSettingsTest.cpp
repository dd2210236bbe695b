// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsProgram.h"
#include "fakes/ErrorNumber.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheStoredSettings : public SettingsProgram {
  protected:
    /// Opens the dialog over a document with a function and a type.
    void LoadWithDocument() {
        Open({"/j/juego.prg"});
        EditorOf(1).Content = "process Uno()\ntype Nave";
        Load();
    }
    std::vector<QString> Functions() { return Lists.Items[NavigationList::Functions]; }
    std::vector<QString> Types() { return Lists.Items[NavigationList::Types]; }
};

TEST_F(TheStoredSettings, AreThoseThatWereShownButForTheToolsFolder) {
    Load();
    Settings expected = Options;
    expected.MainPath = "C:\\Fenix\\";
    Store();
    EXPECT_EQ(Options, expected);
}

TEST_F(TheStoredSettings, TakeThePathsFromTheirBoxes) {
    Load();
    Enter(SettingsText::CompilerPath, "/j/FXC.exe");
    Enter(SettingsText::HelpPath, "/j/ayuda.htm");
    Store();
    EXPECT_EQ(Options.FenixCPath, "/j/FXC.exe");
    EXPECT_EQ(Options.HelpPath, "/j/ayuda.htm");
    EXPECT_EQ(Options.MainPath, "/j/");
}

TEST_F(TheStoredSettings, CutSevenCharactersOffTheCompilersPathWhateverItIsCalled) {
    Load();
    Enter(SettingsText::CompilerPath, "D:\\Herramientas\\compilador.exe");
    Store();
    EXPECT_EQ(Options.MainPath, "D:\\Herramientas\\compila");
}

TEST_F(TheStoredSettings, HaveNoToolsFolderForACompilerOfSevenCharacters) {
    Load();
    Enter(SettingsText::CompilerPath, "FXC.exe");
    Store();
    EXPECT_EQ(Options.MainPath, "");
}

TEST_F(TheStoredSettings, TakeEachCheckBoxIntoItsOwnSetting) {
    Load();
    for (const auto &[checkedBox, field] : CheckBoxes) {
        Check(checkedBox, true);
        Store();
        for (const auto &[box, other] : CheckBoxes)
            EXPECT_EQ(Options.*other, std::string_view(box) == checkedBox) << box;
        Check(checkedBox, false);
    }
}

TEST_F(TheStoredSettings, TakeTheTabSizeFromItsText) {
    Load();
    Enter(SettingsText::TabSize, "8");
    Store();
    EXPECT_EQ(Options.TabSize, 8);
}

TEST_F(TheStoredSettings, OverflowWithAFontThatIsTooLargeAfterAllOthers) {
    Load();
    Questions.Fonts = {FontChoice{"Courier", 300}};
    Questions.Colors = {Color{99}};
    Rules.cmdCambiarFuente_Click();
    Rules.cmdCambiarColor_Click();
    EXPECT_EQ(ErrorNumberOf([this] { Store(); }), 6);
    EXPECT_EQ(Options.KeywordsColor, Color{99});
    EXPECT_EQ(Options.Font, "Courier");
    EXPECT_EQ(Options.FontSize, 10);
}

// A compiler path that is too short

TEST_F(TheStoredSettings, AreThePathsAloneWhenTheCompilersIsTooShort) {
    LoadWithDocument();
    Settings expected = Options;
    expected.FenixCPath = "fxcexe";
    expected.HelpPath = "/j/ayuda.htm";
    Enter(SettingsText::CompilerPath, "fxcexe");
    Enter(SettingsText::HelpPath, "/j/ayuda.htm");
    Enter(SettingsText::TabSize, "8");
    for (const char *box : {"chkColorSyntax", "chkLineNumbers", "chkQuickHelp", "chkFunciones",
                            "chkLabels", "chkTypes"})
        Check(box, true);
    Questions.Colors = {Color{99}};
    Questions.Fonts = {FontChoice{"Courier", 12}};
    Rules.cmdCambiarColor_Click();
    Rules.cmdCambiarFuente_Click();
    Window.SelectStyle(4);
    Log.Clear();

    EXPECT_EQ(ErrorNumberOf([this] { Rules.cmdAceptar_Click(); }), 5);

    EXPECT_EQ(Options, expected);
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(TheStoredSettings, KeepTheDialogOnTheScreenWhenTheCompilersPathIsTooShort) {
    LoadWithDocument();
    Enter(SettingsText::CompilerPath, QString());
    Log.Clear();
    EXPECT_EQ(ErrorNumberOf([this] { Rules.cmdAplicar_Click(); }), 5);
    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(Options.FenixCPath, "");
}

// The symbol lists

TEST_F(TheStoredSettings, ScanTheCurrentDocumentWhenFunctionsAreShown) {
    LoadWithDocument();
    Check("chkFunciones", true);
    Store();
    EXPECT_THAT(Functions(), ElementsAre("Uno"));
    EXPECT_EQ(Languages.Registered.UserWords, "\nUno");
}

TEST_F(TheStoredSettings, ScanWithTheNewValueForFunctionsAndThePreviousOneForTypes) {
    Options.ShowTypes = true;
    LoadWithDocument();
    Check("chkFunciones", true);
    Check("chkTypes", false);
    Store();
    EXPECT_THAT(Types(), ElementsAre("Nave"));
    EXPECT_FALSE(Options.ShowTypes);
    Scanner.ScanSymbols();
    EXPECT_THAT(Types(), IsEmpty());
}

TEST_F(TheStoredSettings, ShowTypesThatWereSwitchedOnFromTheNextScanOn) {
    LoadWithDocument();
    Check("chkFunciones", true);
    Check("chkTypes", true);
    Store();
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_TRUE(Options.ShowTypes);
    Scanner.ScanSymbols();
    EXPECT_THAT(Types(), ElementsAre("Nave"));
}

TEST_F(TheStoredSettings, StillHaveTheLabelsOfBeforeDuringTheScan) {
    LoadWithDocument();
    Check("chkFunciones", true);
    Check("chkLabels", true);
    std::optional<bool> labelsDuringScan;
    Events.WhileYielding = [&] { labelsDuringScan = Options.ShowLabels; };
    Store();
    EXPECT_EQ(labelsDuringScan, false);
    EXPECT_TRUE(Options.ShowLabels);
}

TEST_F(TheStoredSettings, HaveEverythingBeforeTheScanAndNothingBehindItDuringTheScan) {
    LoadWithDocument();
    for (const char *box : {"chkColorSyntax", "chkLineNumbers", "chkQuickHelp", "chkFunciones",
                            "chkLabels", "chkTypes"})
        Check(box, true);
    Enter(SettingsText::TabSize, "8");
    Questions.Colors = {Color{99}};
    Questions.Fonts = {FontChoice{"Courier", 12}};
    Rules.cmdCambiarColor_Click();
    Rules.cmdCambiarFuente_Click();
    std::optional<Settings> duringScan;
    Events.WhileYielding = [&] { duringScan = Options; };

    Settings expected = Options;
    expected.MainPath = "C:\\Fenix\\";
    expected.ColorSyntax = expected.LineNumbers = true;
    expected.ShowQuickHelp = expected.ShowFunctions = true;
    expected.TabSize = 8;
    Store();
    ASSERT_TRUE(duringScan);
    EXPECT_EQ(*duringScan, expected);
}

TEST_F(TheStoredSettings, EmptyTheListsAndTheUserWordsWhenFunctionsAreNotShown) {
    LoadWithDocument();
    Words.LanguageDefinition.Keywords = "\nCls";
    Words.LanguageDefinition.UserWords = "\nUno";
    Lists.Items[NavigationList::Functions] = {"Uno", "Dos"};
    Lists.Items[NavigationList::Labels] = {"fin"};
    Lists.Items[NavigationList::Types] = {"Nave"};
    Store();
    EXPECT_THAT(Log.CallsOf({"languages.", "lists.", "window.Unload"}),
                ElementsAre("languages.RegisterLanguage Blitz3D", "lists.RemoveItem Functions 0",
                            "lists.RemoveItem Functions 0", "lists.RemoveItem Labels 0",
                            "lists.RemoveItem Types 0", "window.Unload"));
    EXPECT_EQ(Languages.Registered.UserWords, "");
    EXPECT_EQ(Languages.Registered.Keywords, "\nCls");
}

TEST_F(TheStoredSettings, NeedNoDocument) {
    Load();
    Check("chkFunciones", true);
    Store();
    EXPECT_THAT(Log.CallsOf({"lists.", "languages."}), IsEmpty());
    EXPECT_TRUE(Options.ShowFunctions);
}

} // namespace
} // namespace Quillbox
