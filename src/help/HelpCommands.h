// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class HelpViewer;
class MainWindow;
class Navigation;
struct DocumentRegistry;
struct Settings;

/// The commands that bring the help page forward.
class HelpCommands {
  public:
    HelpCommands(DocumentRegistry &registry, const Settings &settings, HelpViewer &help,
                 Navigation &navigation);

    /// With a document active, switches to the help page as it stands; no page is looked up for the
    /// word at the caret.
    void mnuAyuda_Contextual_Click();
    /// Shows the page of HelpPath, which may be another one than that of the start.
    void tbEstandar_Inicio_Click();

  private:
    DocumentRegistry &Registry_;
    const Settings &Settings_;
    HelpViewer &Help_;
    Navigation &Navigation_;
};

/// The tool buttons "Atrás" and "Adelante" follow the viewer's history. Other commands of the
/// viewer have no button.
void htmlAyuda_CommandStateChange(int command, bool enabled, MainWindow &mainWindow);

} // namespace Quillbox
