// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class CommandState;
class DocumentWindow;
class HelpViewer;
class NavigationLists;
struct DocumentRegistry;
class TabStrip;

/// Walking between the help page and the open documents.
class Navigation {
  public:
    Navigation(DocumentRegistry &registry, TabStrip &tabs, NavigationLists &lists, HelpViewer &help,
               CommandState &commandState);

    /// Steps back by one and activates what is there; also the routine that activates any position,
    /// for callers that set the current index one too high first.
    void ActivatePrevious();
    /// Steps forward by one. It knows no help page: with no document open the document commands
    /// become enabled and the missing document is run-time error 9.
    void ActivateNext();
    /// A click on a tab, 1-based.
    void tabDocuments_Click(int tab);
    void mnuVentana_Ayuda_Click();
    /// The person made a window active by its own frame; null stands for the help page.
    void ActivateWindow(const DocumentWindow *window);

  private:
    void ActivateHelpPage();
    void ActivateCurrentDocument();

    DocumentRegistry &Registry_;
    TabStrip &Tabs_;
    NavigationLists &Lists_;
    HelpViewer &Help_;
    CommandState &CommandState_;
};

} // namespace Quillbox
