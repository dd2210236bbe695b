// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"

#include "app/CommandWindows.h"
#include "app/Rules.h"
#include "editor/EditCommands.h"
#include "editor/LineCommands.h"
#include "language/WordCompletion.h"
#include "surfaces/EditorControl.h"
#include "surfaces/HelpViewer.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

template <void (*Edit)(EditorControl &)>
void InEditor(Rules &on) {
    Edit(on.CurrentEditor());
}

template <EditorCommand Command>
void Numbered(Rules &on) {
    on.CurrentEditor().ExecuteCommand(Command);
}

void OpenDocumentAndScan(Rules &on) {
    on.Documents.OpenDocument(QString());
    on.Scanner.ScanSymbols();
}

void NewProject(Rules &on) {
    on.Projects.mnuArchivo_NuevoProyecto_Click([&] { on.Windows.ShowNewProject(); });
}

void CompleteWord(Rules &on) {
    const NavigationLists &lists = on.Main.Lists;
    const SymbolCounts counts{lists.ItemCount(NavigationList::Functions),
                              lists.ItemCount(NavigationList::Types)};
    on.CurrentEditor().CompleteWord(CollectCompletions(on.Words, on.Registry.Current(), counts));
}

void ToggleLineComments(Rules &on) {
    ToggleComments(on.CurrentEditor(), on.Words.LanguageDefinition);
}

void InsertColor(Rules &on) {
    if (on.Registry.CurrentIndex > 0)
        on.ColorInsertion.mnuEdicion_InsertarRGB_Click(on.CurrentEditor());
}

constexpr Availability WithProject{Needs::Project};
constexpr Availability OnHelpPage{Needs::HelpPage};
constexpr Availability WithDocument(int turn) { return {Needs::Document, turn}; }

constexpr ToolButton NoButton{};
constexpr ToolButton Button(int place, const char *tooltip, const char *icon) {
    return {place, tooltip, icon};
}

constexpr Command Menu(const char *name, const char *caption, Availability enabled = {}) {
    return {name, caption, "", nullptr, NoButton, enabled};
}

constexpr Command Separator{};

constexpr Command Table[] = {
    Menu("mnuArchivo", "&Archivo"),
    {"mnuArchivo_Nuevo", "&Nuevo", "Ctrl+N", [](Rules &on) { on.Documents.NewDocument(); },
     Button(11, "Nuevo", "nuevo")},
    {"mnuArchivo_Abrir", "&Abrir...", "Ctrl+O", OpenDocumentAndScan, Button(12, "Abrir", "abrir")},
    {"mnuArchivo_Guardar", "&Guardar", "Ctrl+S", [](Rules &on) { on.Documents.SaveDocument(); },
     Button(13, "Guardar", "guardar"), WithDocument(3)},
    {"mnuArchivo_GuardarComo", "Guardar &como...", "Ctrl+Shift+S",
     [](Rules &on) { on.Documents.SaveDocumentAs(); }, NoButton, WithDocument(4)},
    {"mnuArchivo_Cerrar", "C&errar", "Ctrl+W",
     [](Rules &on) { on.Documents.mnuArchivo_Cerrar_Click(); }, Button(15, "Cerrar", "cerrar"),
     WithDocument(6)},
    {"mnuArchivo_CerrarTodo", "Cerrar &todo", "Ctrl+Shift+W",
     [](Rules &on) { on.Documents.mnuArchivo_CerrarTodo_Click(); }},
    Separator,
    {"mnuArchivo_NuevoProyecto", "N&uevo proyecto...", "", NewProject},
    {"mnuArchivo_AbrirProyecto", "A&brir proyecto...", "",
     [](Rules &on) { on.Projects.mnuArchivo_AbrirProyecto_Click(); },
     Button(51, "Abrir Proyecto", "abrir_proyecto")},
    {"mnuArchivo_GuardarProyecto", "Guardar &proyecto", "",
     [](Rules &on) { on.Projects.mnuArchivo_GuardarProyecto_Click(); }, NoButton, WithProject},
    {"mnuArchivo_GuardarProyectoComo", "Guardar pr&oyecto como...", "",
     [](Rules &on) { on.Projects.mnuArchivo_GuardarProyectoComo_Click(); }, NoButton, WithProject},
    {"mnuArchivo_CerrarProyecto", "Ce&rrar proyecto", "",
     [](Rules &on) { on.Projects.mnuArchivo_CerrarProyecto_Click(); }, NoButton, WithProject},
    Separator,
    {"mnuArchivo_Imprimir", "&Imprimir...", "Ctrl+P",
     [](Rules &on) { on.Documents.mnuArchivo_Imprimir_Click(); },
     Button(14, "Imprimir", "imprimir"), WithDocument(5)},
    Separator,
    {"mnuArchivo_Salir", "&Salir", "Ctrl+Q", [](Rules &on) { on.Main.Window.RequestClose(); },
     Button(71, "Salir", "salir")},

    Menu("mnuEdicion", "&Edición", WithDocument(1)),
    {"mnuEdicion_Deshacer", "&Deshacer", "Ctrl+Z", InEditor<Undo>,
     Button(31, "Deshacer", "deshacer")},
    {"mnuEdicion_Rehacer", "Re&hacer", "Ctrl+Y", InEditor<Redo>, Button(32, "Rehacer", "rehacer")},
    Separator,
    {"mnuEdicion_Cortar", "Cor&tar", "Ctrl+X", InEditor<Cut>, Button(33, "Cortar", "cortar")},
    {"mnuEdicion_Copiar", "&Copiar", "Ctrl+C", InEditor<Copy>, Button(34, "Copiar", "copiar")},
    {"mnuEdicion_Pegar", "&Pegar", "Ctrl+V", InEditor<Paste>, Button(35, "Pegar", "pegar")},
    {"mnuEdición_Eliminar", "&Eliminar", "", InEditor<Delete>},
    {"mnuEdicion_SeleccionarTodo", "&Seleccionar todo", "Ctrl+A",
     Numbered<EditorCommand::SelectAll>},
    Separator,
    {"mnuEdicion_BuscarReemplazar", "Buscar &y reemplazar...", "Ctrl+F",
     Numbered<EditorCommand::FindAndReplace>, Button(22, "Buscar", "buscar")},
    {"mnuEdicion_BuscarSiguiente", "Buscar si&guiente", "F3", Numbered<EditorCommand::FindNext>},
    {"mnuEdicion_BuscarAnterior", "&Buscar anterior", "Shift+F3",
     Numbered<EditorCommand::FindPrevious>},
    {"mnuEdicion_IrALinea", "&Ir a la línea...", "Ctrl+G", Numbered<EditorCommand::GoToLine>},
    {"mnuEdicion_IrACorchete", "Ir al corchete empare&jado", "Ctrl+B",
     Numbered<EditorCommand::GoToMatchingBracket>},
    {"mnuEdicion_SeleccionarSiguiente", "Seleccionar pró&xima aparición", "Ctrl+D",
     Numbered<EditorCommand::SelectNextOccurrence>},
    Separator,
    {"mnuEdicion_InsertarEliminarBookmark", "Acti&var o quitar marcador", "Ctrl+F2",
     Numbered<EditorCommand::ToggleBookmark>},
    {"mnuEdicion_BookmarkSiguiente", "&Marcador siguiente", "F2",
     Numbered<EditorCommand::NextBookmark>},
    {"mnuEdicion_BookmarkAnterior", "Marcador &anterior", "Shift+F2",
     Numbered<EditorCommand::PreviousBookmark>},
    {"mnuEdicion_PrimerBookmark", "P&rimer marcador", "", Numbered<EditorCommand::FirstBookmark>},
    {"mnuEdicion_UltimoBookmark", "Ú&ltimo marcador", "", Numbered<EditorCommand::LastBookmark>},
    {"mnuEdicion_EliminarTodosBookmarks", "Q&uitar todos los marcadores", "Ctrl+Shift+F2",
     Numbered<EditorCommand::ClearBookmarks>},
    Separator,
    {"mnuEdicion_CompletarPalabra", "Completar palabra o &función", "Ctrl+Space", CompleteWord},
    {"mnuEdicion_AlternarComentarios", "Alter&nar comentarios", "Ctrl+K", ToggleLineComments},
    {"mnuEdicion_DesplazarDerecha", "Despla&zar a la derecha", "Ctrl+I", InEditor<IndentLines>},
    {"mnuEdicion_DesplazarIzquierda", "Desplazar a la iz&quierda", "Ctrl+Shift+I",
     InEditor<OutdentLines>},
    {"mnuEdicion_InsertarRGB", "Insertar c&olor RGB...", "", InsertColor},

    Menu("mnuPrograma", "&Programa", WithDocument(2)),
    {"mnuPrograma_ComprobarErrores", "&Comprobar errores", "F7",
     [](Rules &on) { on.Build.mnuPrograma_ComprobarErrores_Click(); }},
    {"mnuPrograma_Ejecutar", "&Ejecutar", "F5",
     [](Rules &on) { on.Build.mnuPrograma_Ejecutar_Click(); }, Button(41, "Ejecutar", "ejecutar")},
    {"mnuPrograma_CrearEXE", "Crear e&jecutable...", "Ctrl+F7",
     [](Rules &on) { on.Build.mnuPrograma_CrearEXE_Click(); }},
    Separator,
    {"mnuPrograma_ModoDebug", "Modo &debug", "",
     [](Rules &on) { on.DebugMode.mnuPrograma_ModoDebug_Click(); }},

    Menu("mnuHerramientas", "&Herramientas"),
    {"mnuHerramientas_Calculadora", "C&alculadora", "",
     [](Rules &on) { on.Tools.mnuHerramientas_Calculadora_Click(); }},
    {"mnuHerramientas_ExploradorMedia", "&Explorador Media", "",
     [](Rules &on) { on.Windows.ShowMediaBrowser(); },
     Button(54, "Explorador Media", "explorador_media")},
    {"mnuHerramientas_ScaffolderGenerator", "&Scaffolder Generator", "",
     [](Rules &on) { on.Tools.mnuHerramientas_ScaffolderGenerator_Click(); }},
    Separator,
    {"mnuHerramientas_Configuracion", "&Configuración...", "",
     [](Rules &on) { on.Windows.ShowSettings(); }, Button(21, "Configuración", "configuracion")},

    Menu("mnuVentana", "&Ventana", WithDocument(7)),
    {"mnuVentana_Anterior", "&Anterior", "Ctrl+Shift+F6",
     [](Rules &on) { on.Navigation.ActivatePrevious(); }},
    {"mnuVentana_Siguiente", "&Siguiente", "Ctrl+F6",
     [](Rules &on) { on.Navigation.ActivateNext(); }},
    Separator,
    {"mnuVentana_Ayuda", "A&yuda", "", [](Rules &on) { on.Navigation.mnuVentana_Ayuda_Click(); }},

    Menu("mnuAyuda", "A&yuda"),
    {"mnuAyuda_Acercade", "&Acerca de Quillbox", "", [](Rules &on) { on.Windows.ShowAbout(); }},
    Separator,
    {"mnuAyuda_Contextual", "Ayuda &Contextual", "F1",
     [](Rules &on) { on.Help.mnuAyuda_Contextual_Click(); }},
    {"mnuAyuda_Inkwell", "Ayuda de &Quillbox", "",
     [](Rules &on) { on.Tools.mnuAyuda_Inkwell_Click(); }},

    // With a tool button only.
    {"tbEstandar_InformacionProyecto", "", "", [](Rules &on) { on.Windows.ShowProjectInfo(); },
     Button(52, "Información del Proyecto", "informacion_del_proyecto"), WithProject},
    {"tbEstandar_TareasPendientes", "", "", [](Rules &on) { on.Windows.ShowToDoList(); },
     Button(53, "Tareas Pendientes", "tareas_pendientes"), WithProject},
    {"tbEstandar_Inicio", "", "", [](Rules &on) { on.Help.tbEstandar_Inicio_Click(); },
     Button(61, "Inicio", "inicio")},
    {"tbEstandar_Atras", "", "", [](Rules &on) { on.Main.Help.GoBack(); },
     Button(62, "Atrás", "atras"), OnHelpPage},
    {"tbEstandar_Adelante", "", "", [](Rules &on) { on.Main.Help.GoForward(); },
     Button(63, "Adelante", "adelante"), OnHelpPage},
};

} // namespace

std::span<const Command> Commands() { return Table; }

} // namespace Quillbox
