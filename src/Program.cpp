// SPDX-License-Identifier: GPL-3.0-or-later
#include "Program.h"

#include "app/ui/frmAcercaDe.h"
#include "editor/EditCommands.h"
#include "editor/LineCommands.h"
#include "language/WordCompletion.h"
#include "project/ui/frmNewProject.h"
#include "settings/ui/frmSettings.h"
#include "surfaces/EditorControl.h"
#include "surfaces/HelpViewer.h"

namespace Quillbox {
namespace {

/// Takes commands with their names in UTF-8.
auto AdderTo(CommandTable &commands) {
    return [&commands](const char *name, std::function<void()> command) {
        commands[QString::fromUtf8(name)] = std::move(command);
    };
}

} // namespace

Program::Program(const Outside &outside)
    : Outside_(outside)
    , Boundary_(outside.Dialogs)
    , MainWindow_(std::make_unique<frmMain>(Commands_, Events_, Boundary_))
    , Main_(*MainWindow_)
    , Store_(outside.AppDir, Settings_, outside.Profile)
    , WordFiles_(outside.AppDir, Words_, outside.Files, outside.Dialogs)
    , CommandState_(Main_, outside.Events)
    , Navigation_(Registry_, Main_.Tabs(), Main_.Lists(), Main_.Help(), CommandState_)
    , Documents_(Registry_, Main_, Main_.Tabs(), outside.Dialogs, CommandState_)
    , Scanner_(Registry_, Settings_, Main_.Lists(), {Words_.LanguageDefinition, Languages_},
               outside.Events)
    , SymbolLists_(Registry_, Main_.Lists())
    , QuickHelp_(Settings_, Words_, Registry_)
    , ColorInsertion_(outside.Dialogs)
    , CompilerLog_(outside.AppDir, Registry_, Documents_, outside.Files, outside.Dialogs)
    , Compiler_(outside.Console, outside.Events, Main_, CompilerLog_)
    , Build_({Registry_, Documents_, Settings_, Compiler_, CompilerLog_, outside.Launcher,
              outside.Dialogs})
    , HelpLinks_(Registry_, Documents_, Scanner_, outside.Launcher)
    , HelpCommands_(Registry_, Settings_, Main_.Help(), Navigation_)
    , Tools_(outside.AppDir, outside.Launcher, outside.Files, outside.Dialogs)
    , NewProject_(Project_, outside.Profile, outside.Dialogs)
    , ProjectInfo_({Project_, outside.Dialogs, outside.Files, Documents_, Main_, outside.Events})
    , ToDoList_(Project_, outside.Dialogs)
    , ProjectCommands_({Project_, Main_, outside.Profile, outside.Files, outside.Dialogs,
                        Documents_, [this] { ShowNewProject(); }})
    , Toolbar_(Commands_, Registry_, Project_)
    , ShutDown_{Project_, [this] { ProjectCommands_.mnuArchivo_CerrarProyecto_Click(); }, Registry_,
                Documents_, Store_} {
    FillCommands();
    FillProjectCommands();
    FillEditCommands();
    FillHelpCommands();
    FillEvents();
}

Program::~Program() { MainWindow_.reset(); }

void Program::Start() {
    Main_.DisableMissingCommands();
    StartUp{Outside_.AppDir, Main_,  CommandState_, {Words_.LanguageDefinition, Languages_},
            WordFiles_,      Store_, Main_.Help()}
        .Run();
    Main_.show();
}

void Program::FillCommands() {
    const auto add = AdderTo(Commands_);
    add("mnuArchivo_Nuevo", [this] { Documents_.NewDocument(); });
    add("mnuArchivo_Abrir", [this] {
        Documents_.OpenDocument(QString());
        Scanner_.ScanSymbols();
    });
    add("mnuArchivo_Guardar", [this] { Documents_.SaveDocument(); });
    add("mnuArchivo_GuardarComo", [this] { Documents_.SaveDocumentAs(); });
    add("mnuArchivo_Cerrar", [this] { Documents_.mnuArchivo_Cerrar_Click(); });
    add("mnuArchivo_CerrarTodo", [this] { Documents_.mnuArchivo_CerrarTodo_Click(); });
    add("mnuArchivo_Imprimir", [this] { Documents_.mnuArchivo_Imprimir_Click(); });
    add("mnuArchivo_Salir", [this] { Main_.RequestClose(); });
    add("mnuPrograma_ComprobarErrores", [this] { Build_.mnuPrograma_ComprobarErrores_Click(); });
    add("mnuPrograma_Ejecutar", [this] { Build_.mnuPrograma_Ejecutar_Click(); });
    add("mnuPrograma_CrearEXE", [this] { Build_.mnuPrograma_CrearEXE_Click(); });
    add("mnuPrograma_ModoDebug", [this] { mnuPrograma_ModoDebug_Click(DebugMode_, Main_); });
    add("mnuHerramientas_ExploradorMedia", [this] { ShowMediaBrowser(); });
    add("mnuHerramientas_Configuracion", [this] { ShowSettings(); });
    add("mnuVentana_Anterior", [this] { Navigation_.ActivatePrevious(); });
    add("mnuVentana_Siguiente", [this] { Navigation_.ActivateNext(); });
    add("mnuVentana_Ayuda", [this] { Navigation_.mnuVentana_Ayuda_Click(); });
}

void Program::FillHelpCommands() {
    const auto add = AdderTo(Commands_);
    add("mnuAyuda_Acercade", [this] { frmAcercaDe(&Main_).exec(); });
    add("mnuAyuda_Contextual", [this] { HelpCommands_.mnuAyuda_Contextual_Click(); });
    add("mnuAyuda_Inkwell", [this] { Tools_.mnuAyuda_Inkwell_Click(); });
    add("mnuHerramientas_Calculadora", [this] { Tools_.mnuHerramientas_Calculadora_Click(); });
    add("mnuHerramientas_ScaffolderGenerator",
        [this] { Tools_.mnuHerramientas_ScaffolderGenerator_Click(); });
    add("tbEstandar_Inicio", [this] { HelpCommands_.tbEstandar_Inicio_Click(); });
    add("tbEstandar_Atras", [this] { Main_.Help().GoBack(); });
    add("tbEstandar_Adelante", [this] { Main_.Help().GoForward(); });
    Main_.Help().SetEvents(
        {[this](const QString &url) { return HelpLinks_.htmlAyuda_BeforeNavigate(url); },
         [this](int command, bool enabled) {
             htmlAyuda_CommandStateChange(command, enabled, Main_);
         }});
}

void Program::FillProjectCommands() {
    const auto add = AdderTo(Commands_);
    const auto addRule = [&](const char *name, void (ProjectCommands::*command)()) {
        add(name, [this, command] { (ProjectCommands_.*command)(); });
    };
    addRule("mnuArchivo_NuevoProyecto", &ProjectCommands::mnuArchivo_NuevoProyecto_Click);
    addRule("mnuArchivo_AbrirProyecto", &ProjectCommands::mnuArchivo_AbrirProyecto_Click);
    addRule("mnuArchivo_GuardarProyecto", &ProjectCommands::mnuArchivo_GuardarProyecto_Click);
    addRule("mnuArchivo_GuardarProyectoComo",
            &ProjectCommands::mnuArchivo_GuardarProyectoComo_Click);
    addRule("mnuArchivo_CerrarProyecto", &ProjectCommands::mnuArchivo_CerrarProyecto_Click);
    add("tbEstandar_InformacionProyecto",
        [this] { ShowModeless(ProjectInfoWindow_, ProjectInfo_); });
    add("tbEstandar_TareasPendientes", [this] { ShowModeless(ToDoListWindow_, ToDoList_); });
}

void Program::FillEditCommands() {
    const auto add = AdderTo(Commands_);
    for (const EditCommand &command : EditCommands())
        add(command.Name, [this, run = command.Run] { run(CurrentEditor()); });
    add("mnuEdicion_AlternarComentarios",
        [this] { ToggleComments(CurrentEditor(), Words_.LanguageDefinition); });
    add("mnuEdicion_InsertarRGB", [this] {
        if (Registry_.CurrentIndex > 0)
            ColorInsertion_.mnuEdicion_InsertarRGB_Click(CurrentEditor());
    });
    add("mnuEdicion_CompletarPalabra", [this] {
        const SymbolCounts counts{Main_.Lists().ItemCount(NavigationList::Functions),
                                  Main_.Lists().ItemCount(NavigationList::Types)};
        CurrentEditor().CompleteWord(CollectCompletions(Words_, Registry_.Current(), counts));
    });
}

void Program::FillEvents() {
    Events_.ToolButtonClick = [this](const QString &tooltip) {
        Toolbar_.tbEstandar_ButtonClick(tooltip);
    };
    Events_.TabClick = [this](int tab) { Navigation_.tabDocuments_Click(tab); };
    Events_.ListUsed = [this](NavigationList list) { SymbolLists_.GotoSelected(list); };
    Events_.ChildActivated = [this](const DocumentWindow *child) {
        Navigation_.ActivateWindow(child);
    };
    Events_.MakeDocumentWindow = [this](DocumentArea &area) { return MakeDocumentWindow(area); };
    Events_.MayClose = [this] { return ShutDown_.Run(); };
}

frmDoc *Program::MakeDocumentWindow(DocumentArea &area) {
    const EditorViewParts view{Settings_, Registry_, Scanner_, QuickHelp_, Main_, Outside_.Events};
    return new frmDoc({area, view, Languages_, Find_, Outside_.Dialogs, Boundary_,
                       [this] { Documents_.mnuArchivo_Cerrar_Click(); }});
}

EditorControl &Program::CurrentEditor() { return Registry_.Current().Window->Editor(); }

void Program::ShowNewProject() {
    const auto startScaffolder = [this] { Tools_.mnuHerramientas_ScaffolderGenerator_Click(); };
    frmNewProject(NewProject_, Boundary_, startScaffolder, &Main_).exec();
}

/// Hidden, the browser keeps its folder and its selection.
void Program::ShowMediaBrowser() {
    if (!MediaBrowserWindow_)
        MediaBrowserWindow_ =
            new frmMediaBrowser({Outside_.AppDir, Registry_, Main_, Outside_.Files,
                                 Outside_.Launcher, Outside_.Dialogs, Outside_.Events},
                                Outside_.Disks, Boundary_, &Main_);
    MediaBrowserWindow_->ComeForward();
}

/// While its changes are applied it is hidden and a person may ask for it once more.
void Program::ShowSettings() {
    if (SettingsWindow_)
        return;
    const SymbolParts symbols{Scanner_, {Words_.LanguageDefinition, Languages_}, Main_.Lists()};
    frmSettings settings({Outside_.AppDir, Settings_, Registry_, symbols, Outside_.Dialogs,
                          Outside_.Launcher, Outside_.Events},
                         Boundary_, &Main_);
    SettingsWindow_ = &settings;
    settings.ShowUntilClosed();
}

/// A window that is open already comes forward as it is; a closed one may still wait for its
/// deletion.
template <typename Window, typename Rules>
void Program::ShowModeless(QPointer<Window> &window, Rules &rules) {
    if (!window || !window->isVisible())
        window = new Window(rules, Boundary_, &Main_);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace Quillbox
