// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Menus.h"

namespace Quillbox {
namespace {

constexpr MenuEntry Entries[] = {
    {"", "mnuArchivo", "&Archivo", ""},
    {"mnuArchivo", "mnuArchivo_Nuevo", "&Nuevo", "Ctrl+N"},
    {"mnuArchivo", "mnuArchivo_Abrir", "&Abrir...", "Ctrl+O"},
    {"mnuArchivo", "mnuArchivo_Guardar", "&Guardar", "Ctrl+S"},
    {"mnuArchivo", "mnuArchivo_GuardarComo", "Guardar &como...", "Ctrl+Shift+S"},
    {"mnuArchivo", "mnuArchivo_Cerrar", "C&errar", "Ctrl+W"},
    {"mnuArchivo", "mnuArchivo_CerrarTodo", "Cerrar &todo", "Ctrl+Shift+W"},
    {"mnuArchivo", "", "-", ""},
    {"mnuArchivo", "mnuArchivo_NuevoProyecto", "N&uevo proyecto...", ""},
    {"mnuArchivo", "mnuArchivo_AbrirProyecto", "A&brir proyecto...", ""},
    {"mnuArchivo", "mnuArchivo_GuardarProyecto", "Guardar &proyecto", ""},
    {"mnuArchivo", "mnuArchivo_GuardarProyectoComo", "Guardar pr&oyecto como...", ""},
    {"mnuArchivo", "mnuArchivo_CerrarProyecto", "Ce&rrar proyecto", ""},
    {"mnuArchivo", "", "-", ""},
    {"mnuArchivo", "mnuArchivo_Imprimir", "&Imprimir...", "Ctrl+P"},
    {"mnuArchivo", "", "-", ""},
    {"mnuArchivo", "mnuArchivo_Salir", "&Salir", "Ctrl+Q"},

    {"", "mnuEdicion", "&Edición", ""},
    {"mnuEdicion", "mnuEdicion_Deshacer", "&Deshacer", "Ctrl+Z"},
    {"mnuEdicion", "mnuEdicion_Rehacer", "Re&hacer", "Ctrl+Y"},
    {"mnuEdicion", "", "-", ""},
    {"mnuEdicion", "mnuEdicion_Cortar", "Cor&tar", "Ctrl+X"},
    {"mnuEdicion", "mnuEdicion_Copiar", "&Copiar", "Ctrl+C"},
    {"mnuEdicion", "mnuEdicion_Pegar", "&Pegar", "Ctrl+V"},
    {"mnuEdicion", "mnuEdición_Eliminar", "&Eliminar", ""},
    {"mnuEdicion", "mnuEdicion_SeleccionarTodo", "&Seleccionar todo", "Ctrl+A"},
    {"mnuEdicion", "", "-", ""},
    {"mnuEdicion", "mnuEdicion_BuscarReemplazar", "Buscar &y reemplazar...", "Ctrl+F"},
    {"mnuEdicion", "mnuEdicion_BuscarSiguiente", "Buscar si&guiente", "F3"},
    {"mnuEdicion", "mnuEdicion_BuscarAnterior", "&Buscar anterior", "Shift+F3"},
    {"mnuEdicion", "mnuEdicion_IrALinea", "&Ir a la línea...", "Ctrl+G"},
    {"mnuEdicion", "mnuEdicion_IrACorchete", "Ir al corchete empare&jado", "Ctrl+B"},
    {"mnuEdicion", "mnuEdicion_SeleccionarSiguiente", "Seleccionar pró&xima aparición", "Ctrl+D"},
    {"mnuEdicion", "", "-", ""},
    {"mnuEdicion", "mnuEdicion_InsertarEliminarBookmark", "Acti&var o quitar marcador", "Ctrl+F2"},
    {"mnuEdicion", "mnuEdicion_BookmarkSiguiente", "&Marcador siguiente", "F2"},
    {"mnuEdicion", "mnuEdicion_BookmarkAnterior", "Marcador &anterior", "Shift+F2"},
    {"mnuEdicion", "mnuEdicion_PrimerBookmark", "P&rimer marcador", ""},
    {"mnuEdicion", "mnuEdicion_UltimoBookmark", "Ú&ltimo marcador", ""},
    {"mnuEdicion", "mnuEdicion_EliminarTodosBookmarks", "Q&uitar todos los marcadores",
     "Ctrl+Shift+F2"},
    {"mnuEdicion", "", "-", ""},
    {"mnuEdicion", "mnuEdicion_CompletarPalabra", "Completar palabra o &función", "Ctrl+Space"},
    {"mnuEdicion", "mnuEdicion_AlternarComentarios", "Alter&nar comentarios", "Ctrl+K"},
    {"mnuEdicion", "mnuEdicion_DesplazarDerecha", "Despla&zar a la derecha", "Ctrl+I"},
    {"mnuEdicion", "mnuEdicion_DesplazarIzquierda", "Desplazar a la iz&quierda", "Ctrl+Shift+I"},
    {"mnuEdicion", "mnuEdicion_InsertarRGB", "Insertar c&olor RGB...", ""},

    {"", "mnuPrograma", "&Programa", ""},
    {"mnuPrograma", "mnuPrograma_ComprobarErrores", "&Comprobar errores", "F7"},
    {"mnuPrograma", "mnuPrograma_Ejecutar", "&Ejecutar", "F5"},
    {"mnuPrograma", "mnuPrograma_CrearEXE", "Crear e&jecutable...", "Ctrl+F7"},
    {"mnuPrograma", "", "-", ""},
    {"mnuPrograma", "mnuPrograma_ModoDebug", "Modo &debug", ""},

    {"", "mnuHerramientas", "&Herramientas", ""},
    {"mnuHerramientas", "mnuHerramientas_Calculadora", "C&alculadora", ""},
    {"mnuHerramientas", "mnuHerramientas_ExploradorMedia", "&Explorador Media", ""},
    {"mnuHerramientas", "mnuHerramientas_ScaffolderGenerator", "&Scaffolder Generator", ""},
    {"mnuHerramientas", "", "-", ""},
    {"mnuHerramientas", "mnuHerramientas_Configuracion", "&Configuración...", ""},

    {"", "mnuVentana", "&Ventana", ""},
    {"mnuVentana", "mnuVentana_Anterior", "&Anterior", "Ctrl+Shift+F6"},
    {"mnuVentana", "mnuVentana_Siguiente", "&Siguiente", "Ctrl+F6"},
    {"mnuVentana", "", "-", ""},
    {"mnuVentana", "mnuVentana_Ayuda", "A&yuda", ""},

    {"", "mnuAyuda", "A&yuda", ""},
    {"mnuAyuda", "mnuAyuda_Acercade", "&Acerca de Quillbox", ""},
    {"mnuAyuda", "", "-", ""},
    {"mnuAyuda", "mnuAyuda_Contextual", "Ayuda &Contextual", "F1"},
    {"mnuAyuda", "mnuAyuda_Inkwell", "Ayuda de &Quillbox", ""},
};

} // namespace

std::span<const MenuEntry> MenuEntries() { return Entries; }

} // namespace Quillbox
