// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramWindows.h"

#include "app/Outside.h"
#include "app/Rules.h"
#include "app/ui/frmAcercaDe.h"
#include "app/ui/frmMain.h"
#include "documents/ui/frmDoc.h"
#include "editor/ui/ScintillaEditor.h"
#include "media/ui/frmMediaBrowser.h"
#include "project/ui/frmNewProject.h"
#include "project/ui/frmProjectInfo.h"
#include "project/ui/frmToDoList.h"
#include "search/ui/FindCommands.h"
#include "settings/ui/frmSettings.h"

namespace Quillbox {

ProgramWindows::ProgramWindows(frmMain &mainWindow, const EventBoundary &boundary,
                               const Outside &outside, Rules &rules)
    : MainWindow_(mainWindow)
    , Boundary_(boundary)
    , Outside_(outside)
    , Rules_(rules) {}

frmDoc *ProgramWindows::NewDocumentWindow(DocumentArea &area) {
    auto *editor = new ScintillaEditor(Languages_, Outside_.Dialogs);
    ConnectFinding(*editor, Find_);
    const auto rulesOver = [this](DocumentWindow &window) {
        return DocumentRules{
            {window, Rules_.Settings, MainWindow_, Outside_.Events},
            {window, Rules_.Registry, Rules_.Scanner, Rules_.QuickHelp},
        };
    };
    return new frmDoc(area, editor, rulesOver, Boundary_,
                      [this] { Rules_.Documents.mnuArchivo_Cerrar_Click(); });
}

void ProgramWindows::ShowAbout() { frmAcercaDe(&MainWindow_).exec(); }

void ProgramWindows::ShowNewProject() {
    const auto startScaffolder = [this] {
        Rules_.Tools.mnuHerramientas_ScaffolderGenerator_Click();
    };
    frmNewProject(Rules_.NewProject, Boundary_, startScaffolder, &MainWindow_).exec();
}

/// While its changes are applied it is hidden and a person may ask for it once more.
void ProgramWindows::ShowSettings() {
    if (Settings_)
        return;
    const auto rulesOver = [this](SettingsWindow &window) {
        return SettingsDialog(window, Rules_.Settings, Outside_.Dialogs, Rules_.SettingsEffect,
                              Rules_.Companions);
    };
    frmSettings settings(rulesOver, Boundary_, &MainWindow_);
    Settings_ = &settings;
    settings.ShowUntilClosed();
}

void ProgramWindows::ShowProjectInfo() { ShowModeless(ProjectInfo_, Rules_.ProjectInfo); }

void ProgramWindows::ShowToDoList() { ShowModeless(ToDoList_, Rules_.ToDoList); }

/// Hidden, the browser keeps its folder and its selection.
void ProgramWindows::ShowMediaBrowser() {
    const auto rulesOver = [this](MediaBrowserWindow &window) {
        return MediaBrowser(window, Rules_.Registry, Outside_.Dialogs, Rules_.Companions,
                            Rules_.MainWindowActivation);
    };
    if (!MediaBrowser_)
        MediaBrowser_ =
            new frmMediaBrowser(rulesOver, MainWindow_, Outside_.Folders, Boundary_, &MainWindow_);
    MediaBrowser_->ComeForward();
}

/// A window that is open already comes forward as it is; a closed one may still wait for its
/// deletion.
template <typename Window, typename WindowRules>
void ProgramWindows::ShowModeless(QPointer<Window> &window, WindowRules &rules) {
    if (!window || !window->isVisible())
        window = new Window(rules, Boundary_, &MainWindow_);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace Quillbox
