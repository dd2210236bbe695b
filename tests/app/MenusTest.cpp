// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Menus.h"

#include "fakes/CallLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

bool IsSeparator(const MenuEntry &entry) { return std::string_view(entry.Caption) == "-"; }

/// Names in their order, with "-" for a separator. The empty menu stands for the menu bar.
std::vector<std::string> EntriesOf(std::string_view menu) {
    std::vector<std::string> names;
    for (const MenuEntry &entry : MenuEntries())
        if (entry.Menu == menu)
            names.emplace_back(IsSeparator(entry) ? "-" : entry.Name);
    return names;
}

std::vector<std::string> ItemsOf(std::string_view menu) {
    std::vector<std::string> names = EntriesOf(menu);
    std::erase(names, "-");
    return names;
}

QString CaptionOf(std::string_view name) {
    for (const MenuEntry &entry : MenuEntries())
        if (entry.Name == name)
            return QString::fromUtf8(entry.Caption);
    return "(no such entry)";
}

TEST(Menus, StandInTheirOrder) {
    EXPECT_THAT(EntriesOf(""), ElementsAre("mnuArchivo", "mnuEdicion", "mnuPrograma",
                                           "mnuHerramientas", "mnuVentana", "mnuAyuda"));
}

TEST(Menus, HoldTheCommandsOnDocumentsAndProjects) {
    EXPECT_THAT(ItemsOf("mnuArchivo"),
                UnorderedElementsAre("mnuArchivo_Nuevo", "mnuArchivo_Abrir", "mnuArchivo_Guardar",
                                     "mnuArchivo_GuardarComo", "mnuArchivo_Cerrar",
                                     "mnuArchivo_CerrarTodo", "mnuArchivo_NuevoProyecto",
                                     "mnuArchivo_AbrirProyecto", "mnuArchivo_GuardarProyecto",
                                     "mnuArchivo_GuardarProyectoComo", "mnuArchivo_CerrarProyecto",
                                     "mnuArchivo_Imprimir", "mnuArchivo_Salir"));
}

TEST(Menus, HoldTheCommandsOfTheEditor) {
    EXPECT_THAT(
        ItemsOf("mnuEdicion"),
        UnorderedElementsAre("mnuEdicion_Deshacer", "mnuEdicion_Rehacer", "mnuEdicion_Cortar",
                             "mnuEdicion_Copiar", "mnuEdicion_Pegar", "mnuEdición_Eliminar",
                             "mnuEdicion_SeleccionarTodo", "mnuEdicion_BuscarReemplazar",
                             "mnuEdicion_BuscarSiguiente", "mnuEdicion_BuscarAnterior",
                             "mnuEdicion_IrALinea", "mnuEdicion_IrACorchete",
                             "mnuEdicion_SeleccionarSiguiente", "mnuEdicion_CompletarPalabra",
                             "mnuEdicion_InsertarEliminarBookmark", "mnuEdicion_BookmarkSiguiente",
                             "mnuEdicion_BookmarkAnterior", "mnuEdicion_PrimerBookmark",
                             "mnuEdicion_UltimoBookmark", "mnuEdicion_EliminarTodosBookmarks",
                             "mnuEdicion_AlternarComentarios", "mnuEdicion_DesplazarDerecha",
                             "mnuEdicion_DesplazarIzquierda", "mnuEdicion_InsertarRGB"));
}

TEST(Menus, HoldTheCommandsOfTheCompiler) {
    EXPECT_THAT(ItemsOf("mnuPrograma"),
                UnorderedElementsAre("mnuPrograma_ComprobarErrores", "mnuPrograma_Ejecutar",
                                     "mnuPrograma_CrearEXE", "mnuPrograma_ModoDebug"));
}

TEST(Menus, HoldTheToolsInTheirOrder) {
    EXPECT_THAT(EntriesOf("mnuHerramientas"),
                ElementsAre("mnuHerramientas_Calculadora", "mnuHerramientas_ExploradorMedia",
                            "mnuHerramientas_ScaffolderGenerator", "-",
                            "mnuHerramientas_Configuracion"));
}

TEST(Menus, HoldTheWindowsInTheirOrder) {
    EXPECT_THAT(EntriesOf("mnuVentana"), ElementsAre("mnuVentana_Anterior", "mnuVentana_Siguiente",
                                                     "-", "mnuVentana_Ayuda"));
}

TEST(Menus, HoldTheHelpInItsOrder) {
    EXPECT_THAT(EntriesOf("mnuAyuda"),
                ElementsAre("mnuAyuda_Acercade", "-", "mnuAyuda_Contextual", "mnuAyuda_Inkwell"));
}

TEST(Menus, ShowTheSettledCaptions) {
    struct Case {
        const char *Name;
        const char *Caption;
    };
    const Case cases[] = {
        {"mnuHerramientas", "&Herramientas"},
        {"mnuHerramientas_Calculadora", "C&alculadora"},
        {"mnuHerramientas_ExploradorMedia", "&Explorador Media"},
        {"mnuHerramientas_Configuracion", "&Configuración..."},
        {"mnuVentana_Siguiente", "&Siguiente"},
        {"mnuVentana_Ayuda", "A&yuda"},
        {"mnuAyuda_Acercade", "&Acerca de Quillbox"},
        {"mnuAyuda_Contextual", "Ayuda &Contextual"},
        {"mnuAyuda_Inkwell", "Ayuda de &Quillbox"},
    };
    for (const Case &one : cases)
        EXPECT_EQ(CaptionOf(one.Name), QString::fromUtf8(one.Caption)) << one.Name;
}

TEST(Menus, UseEveryMnemonicOncePerMenu) {
    std::map<std::string, std::set<QChar>> used;
    for (const MenuEntry &entry : MenuEntries()) {
        if (IsSeparator(entry))
            continue;
        const QString caption = QString::fromUtf8(entry.Caption);
        ASSERT_EQ(caption.count('&'), 1) << entry.Caption;
        const QChar mnemonic = caption[caption.indexOf('&') + 1].toLower();
        EXPECT_TRUE(mnemonic.isLetter()) << entry.Caption;
        EXPECT_TRUE(used[entry.Menu].insert(mnemonic).second) << entry.Menu << ' ' << entry.Caption;
    }
}

TEST(Menus, UseEveryShortcutOnce) {
    std::set<std::string> used;
    for (const MenuEntry &entry : MenuEntries())
        if (*entry.Shortcut) {
            EXPECT_TRUE(used.insert(entry.Shortcut).second) << entry.Shortcut;
        }
}

TEST(Menus, UseEveryNameOnce) {
    std::set<std::string> used;
    for (const MenuEntry &entry : MenuEntries())
        if (!IsSeparator(entry)) {
            EXPECT_TRUE(used.insert(entry.Name).second) << entry.Name;
        }
}

TEST(Menus, PutEveryEntryBehindItsOwnMenu) {
    std::string menu;
    for (const MenuEntry &entry : MenuEntries()) {
        if (!*entry.Menu) {
            menu = entry.Name;
        } else {
            EXPECT_EQ(entry.Menu, menu) << entry.Name;
        }
    }
}

TEST(Menus, PutSeparatorsOnlyBetweenItems) {
    for (const std::string &menu : EntriesOf("")) {
        const std::vector<std::string> names = EntriesOf(menu);
        ASSERT_FALSE(names.empty()) << menu;
        EXPECT_NE(names.front(), "-") << menu;
        EXPECT_NE(names.back(), "-") << menu;
        for (std::size_t i = 1; i < names.size(); ++i)
            EXPECT_FALSE(names[i] == "-" && names[i - 1] == "-") << menu;
    }
}

TEST(Menus, GiveSeparatorsNoNameAndNoShortcut) {
    for (const MenuEntry &entry : MenuEntries())
        if (IsSeparator(entry)) {
            EXPECT_STREQ(entry.Name, "");
            EXPECT_STREQ(entry.Shortcut, "");
        }
}

} // namespace
} // namespace Quillbox
