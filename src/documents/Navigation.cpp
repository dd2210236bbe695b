// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/Navigation.h"

#include "documents/ActivateDocument.h"
#include "documents/CommandState.h"
#include "documents/SyncTabs.h"
#include "language/SymbolLists.h"
#include "state/DocumentRegistry.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/MainWindow.h"

#include <algorithm>

namespace Quillbox {

Navigation::Navigation(DocumentRegistry &registry, TabStrip &tabs, NavigationLists &lists,
                       HelpViewer &help, CommandState &commandState)
    : Registry_(registry)
    , Tabs_(tabs)
    , Lists_(lists)
    , Help_(help)
    , CommandState_(commandState) {}

void Navigation::ActivatePrevious() {
    Registry_.CurrentIndex = std::max(Registry_.CurrentIndex - 1, 0);
    if (Registry_.CurrentIndex == 0)
        ActivateHelpPage();
    else
        ActivateCurrentDocument();
    SyncTabs(Registry_, Tabs_);
}

void Navigation::ActivateNext() {
    Registry_.CurrentIndex = std::min(Registry_.CurrentIndex + 1, Registry_.DocumentCount);
    ActivateCurrentDocument();
    SyncTabs(Registry_, Tabs_);
}

void Navigation::tabDocuments_Click(int tab) {
    Registry_.CurrentIndex = tab == 1 ? 0 : tab;
    ActivatePrevious();
}

void Navigation::mnuVentana_Ayuda_Click() {
    Registry_.CurrentIndex = 0;
    SyncTabs(Registry_, Tabs_);
}

void Navigation::ActivateWindow(const DocumentWindow *window) {
    int position = 0;
    if (window)
        for (position = Registry_.DocumentCount; position > 0; --position)
            if (Registry_.Documents[position].Window == window)
                break;
    if (position != Registry_.CurrentIndex && (position > 0 || !window))
        Tabs_.SelectTab(position + 1);
}

void Navigation::ActivateHelpPage() {
    Help_.SetFocus();
    CommandState_.UpdateCommandState(false);
    CommandState_.EnableWindowMenu();
    ClearNavigationLists(Lists_);
}

void Navigation::ActivateCurrentDocument() {
    CommandState_.UpdateCommandState(true);
    ActivateDocument(Registry_.Current());
}

} // namespace Quillbox
