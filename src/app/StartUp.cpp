// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartUp.h"

#include "app/Rules.h"
#include "base/AppDir.h"
#include "state/Language.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/LanguageRegistration.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

void StartUp(Rules &rules, const QString &appDir) {
    rules.Main.Window.SetCaption(NoProjectCaption);
    rules.CommandState.UpdateCommandState(false);
    rules.CommandState.EnableProjectMenus(false);
    const RegisteredLanguage &language = rules.Language;
    SetLanguageRules(language.Definition);
    rules.WordFiles.LoadKeywords();
    rules.WordFiles.LoadQuickHelp();
    rules.Store.LoadSettings();
    language.Registration.RegisterLanguage(SourceLanguage.Name, language.Definition);
    HelpViewer &help = rules.Main.Help;
    help.Show();
    help.Navigate(HelpPagePath(appDir, QStringLiteral("index.htm")));
}

} // namespace Quillbox
