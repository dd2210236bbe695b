// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpCommands.h"

#include "documents/Navigation.h"
#include "state/DocumentRegistry.h"
#include "state/settings.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

HelpCommands::HelpCommands(DocumentRegistry &registry, const Settings &settings, HelpViewer &help,
                           Navigation &navigation)
    : Registry_(registry)
    , Settings_(settings)
    , Help_(help)
    , Navigation_(navigation) {}

void HelpCommands::mnuAyuda_Contextual_Click() {
    if (Registry_.CurrentIndex == 0)
        return;
    // The editor is asked as for a look-up, and its answers stay unused: the command only switches.
    const EditorControl &editor = Registry_.Current().Window->Editor();
    static_cast<void>(editor.GetSel());
    static_cast<void>(editor.CurrentWord());
    Navigation_.mnuVentana_Ayuda_Click();
}

void HelpCommands::tbEstandar_Inicio_Click() {
    Help_.Navigate(Settings_.HelpPath);
    Navigation_.mnuVentana_Ayuda_Click();
}

void htmlAyuda_CommandStateChange(int command, bool enabled, MainWindow &mainWindow) {
    if (command == BackCommand)
        mainWindow.EnableToolButtons(QStringLiteral("Atrás"), enabled);
    else if (command == ForwardCommand)
        mainWindow.EnableToolButtons(QStringLiteral("Adelante"), enabled);
}

} // namespace Quillbox
