// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartUp.h"

#include "app/AppDir.h"
#include "app/CommandState.h"
#include "app/WordFiles.h"
#include "app/settings.h"
#include "platform/HelpViewer.h"
#include "platform/LanguageRegistration.h"
#include "platform/MainWindow.h"
#include "project/Project.h"

namespace Quillbox {

void StartUp::Run() {
    Main.SetCaption(NoProjectCaption);
    Commands.UpdateCommandState(false);
    EnableProjectMenus(Main, false);
    SetLanguageRules(Language.Definition);
    Words.LoadKeywords();
    Words.LoadQuickHelp();
    Store.LoadSettings();
    Language.Registration.RegisterLanguage(LanguageName, Language.Definition);
    Help.Show();
    Help.Navigate(HelpPagePath(AppDir, QStringLiteral("index.htm")));
}

} // namespace Quillbox
