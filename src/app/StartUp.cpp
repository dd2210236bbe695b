// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartUp.h"

#include "base/AppDir.h"
#include "documents/CommandState.h"
#include "state/Language.h"
#include "state/Project.h"
#include "state/WordFiles.h"
#include "state/settings.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/LanguageRegistration.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

void StartUp::Run() {
    Main.SetCaption(NoProjectCaption);
    Commands.UpdateCommandState(false);
    EnableProjectMenus(Main, false);
    SetLanguageRules(Language.Definition);
    Words.LoadKeywords();
    Words.LoadQuickHelp();
    Store.LoadSettings();
    Language.Registration.RegisterLanguage(SourceLanguage.Name, Language.Definition);
    Help.Show();
    Help.Navigate(HelpPagePath(AppDir, QStringLiteral("index.htm")));
}

} // namespace Quillbox
