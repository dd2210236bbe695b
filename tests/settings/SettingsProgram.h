// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FakeSettingsWindow.h"
#include "fakes/FakeProgram.h"
#include "language/SymbolScanner.h"
#include "settings/SettingsEffect.h"
#include "state/WordFiles.h"
#include "surfaces/CompanionPrograms.h"

#include <gmock/gmock.h>

namespace Quillbox {

/// Each check box of the dialog with the setting that it shows.
inline constexpr std::pair<const char *, bool Settings::*> CheckBoxes[] = {
    {"chkColorSyntax", &Settings::ColorSyntax}, {"chkLineNumbers", &Settings::LineNumbers},
    {"chkQuickHelp", &Settings::ShowQuickHelp}, {"chkFunciones", &Settings::ShowFunctions},
    {"chkLabels", &Settings::ShowLabels},       {"chkTypes", &Settings::ShowTypes}};

/// The dialog's rules over fakes, in the program folder "/q/". The settings differ from one another
/// wherever they can.
class SettingsProgram : public FakeProgram {
  protected:
    SettingsProgram() {
        Options.FenixCPath = "C:\\Fenix\\FXC.exe";
        Options.HelpPath = "C:\\Fenix\\index.html";
        Options.MainPath = "D:\\";
        Options.KeywordsColor = {1};
        Options.NumbersColor = {2};
        Options.OperatorsColor = {3};
        Options.StringColor = {4};
        Options.CommentsColor = {5};
        Options.TextColor = {6};
        Options.BackgroundColor = {7};
        Options.KeywordsStyle = 1;
        Options.NumbersStyle = 2;
        Options.OperatorsStyle = 3;
        Options.StringsStyle = 4;
        Options.CommentsStyle = 0;
        Options.TextStyle = 2;
        Options.Font = "Courier New";
        Options.FontSize = 10;
        Options.TabSize = 3;
        Window.Rules = &Rules;
    }

    void Load() {
        Rules.Form_Load();
        Log.Clear();
    }
    QString Text(SettingsText box) const { return Window.Text(box); }
    QString TabSizeText() const { return Text(SettingsText::TabSize); }
    /// As a person who replaces what is in the box.
    void Enter(SettingsText box, const QString &text) { Window.SetText(box, text); }
    void Check(const char *box, bool checked) { Window.Checks[box] = checked; }
    void Store() { Rules.cmdAceptar_Click(); }

    LanguageWords Words;
    SymbolScanner Scanner{Registry, Options, Lists, {Words.LanguageDefinition, Languages}, Events};
    FakeSettingsWindow Window{Log};
    SettingsEffect Effect{Registry, Scanner, Events};
    CompanionPrograms Companions{"/q/", Stored, Launcher, Questions};
    SettingsDialog Rules{Window, Options, Questions, Effect, Companions};
};

} // namespace Quillbox
