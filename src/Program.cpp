// SPDX-License-Identifier: GPL-3.0-or-later
#include "Program.h"

#include "app/StartUp.h"
#include "surfaces/HelpViewer.h"

namespace Quillbox {

Program::Program(const Outside &outside)
    : Outside_(outside)
    , Boundary_(outside.Dialogs)
    , MainWindow_(std::make_unique<frmMain>(Events_, Boundary_))
    , Windows_(*MainWindow_, Boundary_, Outside_, Rules_)
    , Rules_(Outside_, MainWindowSurfaces(), Windows_.Languages(), Windows_)
    , Toolbar_(Rules_.Registry, Rules_.Project,
               [this](const Command &command) { command.Run(Rules_); })
    , ShutDown_{Rules_.Project, [this] { Rules_.Projects.mnuArchivo_CerrarProyecto_Click(); },
                Rules_.Registry, Rules_.Documents, Rules_.Store} {
    FillEvents();
}

Program::~Program() { MainWindow_.reset(); }

void Program::Start() {
    StartUp(Rules_, Outside_.AppDir);
    MainWindow_->show();
}

MainSurfaces Program::MainWindowSurfaces() {
    return {*MainWindow_, MainWindow_->Tabs(), MainWindow_->Lists(), MainWindow_->Help()};
}

void Program::FillEvents() {
    Events_.MenuClick = [this](const Command &item) { item.Run(Rules_); };
    Events_.ToolButtonClick = [this](const QString &tooltip) {
        Toolbar_.tbEstandar_ButtonClick(tooltip);
    };
    Events_.TabClick = [this](int tab) { Rules_.Navigation.tabDocuments_Click(tab); };
    Events_.ListUsed = [this](NavigationList list) { Rules_.SymbolLists.GotoSelected(list); };
    Events_.ChildActivated = [this](const DocumentWindow *child) {
        Rules_.Navigation.ActivateWindow(child);
    };
    Events_.MakeDocumentWindow = [this](DocumentArea &area) {
        return Windows_.NewDocumentWindow(area);
    };
    Events_.MayClose = [this] { return ShutDown_.Run(); };
    MainWindow_->Help().SetEvents(
        {[this](const QString &url) { return Rules_.HelpLinks.htmlAyuda_BeforeNavigate(url); },
         [this](int command, bool enabled) {
             htmlAyuda_CommandStateChange(command, enabled, *MainWindow_);
         }});
}

} // namespace Quillbox
