// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ExternalTools.h"
#include "app/Menus.h"
#include "app/ShutDown.h"
#include "app/StartUp.h"
#include "app/Toolbar.h"
#include "app/ui/frmMain.h"
#include "build/BuildCommands.h"
#include "build/Compiler.h"
#include "build/CompilerLog.h"
#include "documents/CommandState.h"
#include "documents/DocumentCommands.h"
#include "documents/Navigation.h"
#include "documents/ui/frmDoc.h"
#include "editor/ColorInsertion.h"
#include "editor/EditorView.h"
#include "editor/ui/LanguageCatalogue.h"
#include "help/HelpCommands.h"
#include "help/HelpLinks.h"
#include "language/QuickHelp.h"
#include "language/SymbolLists.h"
#include "language/SymbolScanner.h"
#include "media/ui/frmMediaBrowser.h"
#include "project/NewProject.h"
#include "project/ProjectCommands.h"
#include "project/ProjectInfo.h"
#include "project/ToDoList.h"
#include "project/ui/frmProjectInfo.h"
#include "project/ui/frmToDoList.h"
#include "search/ui/FindState.h"
#include "state/DocumentRegistry.h"
#include "state/Project.h"
#include "state/WordFiles.h"
#include "state/settings.h"
#include "widgets/EventBoundary.h"

#include <QPointer>

#include <memory>

namespace Quillbox {

class ConsoleProcess;
class Files;
class Folders;
class PrivateProfile;
class Programs;

/// What the program needs of the system and of people.
struct Outside {
    QString AppDir; ///< the program folder with its separator
    Quillbox::Files &Files;
    PrivateProfile &Profile;
    ConsoleProcess &Console;
    Programs &Launcher;
    Quillbox::Dialogs &Dialogs;
    EventLoop &Events;
    Folders &Disks;
};

/// Everything behind the main window: the records of the process and the rules that share them, in
/// the order in which they need one another. Nothing is decided here.
class Program {
  public:
    explicit Program(const Outside &outside);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Runs the start-up and shows the main window. A run-time error means that the program ends.
    void Start();

    frmMain &Main() { return Main_; }
    DocumentRegistry &Registry() { return Registry_; }
    Project &OpenProject() { return Project_; }
    Settings &Options() { return Settings_; }

  private:
    void FillCommands();
    void FillProjectCommands();
    void FillEditCommands();
    void FillHelpCommands();
    void FillEvents();
    frmDoc *MakeDocumentWindow(DocumentArea &area);
    EditorControl &CurrentEditor();
    void ShowNewProject();
    void ShowMediaBrowser();
    void ShowSettings();
    template <typename Window, typename Rules>
    void ShowModeless(QPointer<Window> &window, Rules &rules);

    Outside Outside_;
    EventBoundary Boundary_;
    Settings Settings_;
    LanguageWords Words_;
    DocumentRegistry Registry_;
    Project Project_;
    bool DebugMode_ = false;
    CommandTable Commands_;
    MainWindowEvents Events_;
    LanguageCatalogue Languages_;
    FindState Find_;
    std::unique_ptr<frmMain> MainWindow_; ///< goes first, while its rules are still there
    frmMain &Main_;
    SettingsStore Store_;
    WordFiles WordFiles_;
    CommandState CommandState_;
    Navigation Navigation_;
    DocumentCommands Documents_;
    SymbolScanner Scanner_;
    SymbolLists SymbolLists_;
    QuickHelp QuickHelp_;
    ColorInsertion ColorInsertion_;
    CompilerLog CompilerLog_;
    Compiler Compiler_;
    BuildCommands Build_;
    HelpLinks HelpLinks_;
    HelpCommands HelpCommands_;
    ExternalTools Tools_;
    NewProject NewProject_;
    ProjectInfo ProjectInfo_;
    ToDoList ToDoList_;
    ProjectCommands ProjectCommands_;
    QPointer<frmProjectInfo> ProjectInfoWindow_;
    QPointer<frmToDoList> ToDoListWindow_;
    QPointer<frmMediaBrowser> MediaBrowserWindow_;
    QPointer<QDialog> SettingsWindow_; ///< while it is open
    ToolbarDispatch Toolbar_;
    ShutDown ShutDown_;
};

} // namespace Quillbox
