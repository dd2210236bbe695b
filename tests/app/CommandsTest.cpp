// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"

#include "fakes/HoldsInOrder.h"

#include <QString>

#include <map>
#include <set>

namespace Quillbox {
namespace {

using testing::IsSupersetOf;

using Names = std::vector<std::string>;

/// Names in their order, with "-" for a separator.
struct Menu {
    std::string Name;
    Names Entries;
};

std::vector<Menu> Menus() {
    std::vector<Menu> menus;
    for (const Command &command : Commands())
        if (command.IsMenu())
            menus.push_back({command.Name, {}});
        else if (command.IsSeparator() || command.IsMenuItem())
            menus.back().Entries.emplace_back(command.IsSeparator() ? "-" : command.Name);
    return menus;
}

Names MenuNames() {
    Names names;
    for (const Menu &menu : Menus())
        names.push_back(menu.Name);
    return names;
}

Names EntriesOf(const std::string &name) {
    for (const Menu &menu : Menus())
        if (menu.Name == name)
            return menu.Entries;
    return {};
}

QString CaptionOf(std::string_view name) {
    for (const Command &command : Commands())
        if (command.Name == name)
            return QString::fromUtf8(command.Caption);
    return "(no such entry)";
}

// A command or a menu that people know stays where it is; others may come between them.

TEST(Menus, StandInTheirOrder) {
    EXPECT_THAT(MenuNames(), HoldsInOrder(Names{"mnuArchivo", "mnuEdicion", "mnuPrograma",
                                                "mnuHerramientas", "mnuVentana", "mnuAyuda"}));
}

TEST(Menus, HoldTheCommandsOnDocumentsAndProjects) {
    EXPECT_THAT(EntriesOf("mnuArchivo"),
                IsSupersetOf(Names{"mnuArchivo_Nuevo", "mnuArchivo_Abrir", "mnuArchivo_Guardar",
                                   "mnuArchivo_GuardarComo", "mnuArchivo_Cerrar",
                                   "mnuArchivo_CerrarTodo", "mnuArchivo_NuevoProyecto",
                                   "mnuArchivo_AbrirProyecto", "mnuArchivo_GuardarProyecto",
                                   "mnuArchivo_GuardarProyectoComo", "mnuArchivo_CerrarProyecto",
                                   "mnuArchivo_Imprimir", "mnuArchivo_Salir"}));
}

TEST(Menus, HoldTheCommandsOfTheEditor) {
    const Names items = {"mnuEdicion_Deshacer",
                         "mnuEdicion_Rehacer",
                         "mnuEdicion_Cortar",
                         "mnuEdicion_Copiar",
                         "mnuEdicion_Pegar",
                         "mnuEdición_Eliminar",
                         "mnuEdicion_SeleccionarTodo",
                         "mnuEdicion_BuscarReemplazar",
                         "mnuEdicion_BuscarSiguiente",
                         "mnuEdicion_BuscarAnterior",
                         "mnuEdicion_IrALinea",
                         "mnuEdicion_IrACorchete",
                         "mnuEdicion_SeleccionarSiguiente",
                         "mnuEdicion_CompletarPalabra",
                         "mnuEdicion_InsertarEliminarBookmark",
                         "mnuEdicion_BookmarkSiguiente",
                         "mnuEdicion_BookmarkAnterior",
                         "mnuEdicion_PrimerBookmark",
                         "mnuEdicion_UltimoBookmark",
                         "mnuEdicion_EliminarTodosBookmarks",
                         "mnuEdicion_AlternarComentarios",
                         "mnuEdicion_DesplazarDerecha",
                         "mnuEdicion_DesplazarIzquierda",
                         "mnuEdicion_InsertarRGB"};
    EXPECT_THAT(EntriesOf("mnuEdicion"), IsSupersetOf(items));
}

TEST(Menus, HoldTheCommandsOfTheCompiler) {
    EXPECT_THAT(EntriesOf("mnuPrograma"),
                IsSupersetOf(Names{"mnuPrograma_ComprobarErrores", "mnuPrograma_Ejecutar",
                                   "mnuPrograma_CrearEXE", "mnuPrograma_ModoDebug"}));
}

TEST(Menus, HoldTheToolsInTheirOrder) {
    EXPECT_THAT(EntriesOf("mnuHerramientas"),
                HoldsInOrder(Names{"mnuHerramientas_Calculadora", "mnuHerramientas_ExploradorMedia",
                                   "mnuHerramientas_ScaffolderGenerator", "-",
                                   "mnuHerramientas_Configuracion"}));
}

TEST(Menus, HoldTheWindowsInTheirOrder) {
    EXPECT_THAT(EntriesOf("mnuVentana"),
                HoldsInOrder(
                    Names{"mnuVentana_Anterior", "mnuVentana_Siguiente", "-", "mnuVentana_Ayuda"}));
}

TEST(Menus, HoldTheHelpInItsOrder) {
    EXPECT_THAT(
        EntriesOf("mnuAyuda"),
        HoldsInOrder(Names{"mnuAyuda_Acercade", "-", "mnuAyuda_Contextual", "mnuAyuda_Inkwell"}));
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
    std::string menu;
    for (const Command &command : Commands()) {
        if (command.IsMenu())
            menu = command.Name;
        if (!command.IsMenu() && !command.IsMenuItem())
            continue;
        const QString caption = QString::fromUtf8(command.Caption);
        ASSERT_EQ(caption.count('&'), 1) << command.Caption;
        const QChar mnemonic = caption[caption.indexOf('&') + 1].toLower();
        EXPECT_TRUE(mnemonic.isLetter()) << command.Caption;
        EXPECT_TRUE(used[command.IsMenu() ? "" : menu].insert(mnemonic).second)
            << menu << ' ' << command.Caption;
    }
}

TEST(Menus, UseEveryShortcutOnce) {
    std::set<std::string> used;
    for (const Command &command : Commands())
        if (*command.Key) {
            EXPECT_TRUE(used.insert(command.Key).second) << command.Key;
        }
}

TEST(Menus, UseEveryNameOnce) {
    std::set<std::string> used;
    for (const Command &command : Commands())
        if (!command.IsSeparator()) {
            EXPECT_TRUE(used.insert(command.Name).second) << command.Name;
        }
}

/// "mnuArchivo_Abrir" stands in "mnuArchivo". One name carries an accent that its menu lacks.
TEST(Menus, PutEveryEntryBehindItsOwnMenu) {
    for (const Menu &menu : Menus())
        for (const std::string &name : menu.Entries)
            if (name != "-" && name != "mnuEdición_Eliminar") {
                EXPECT_TRUE(name.starts_with(menu.Name + '_')) << name;
            }
}

TEST(Menus, PutSeparatorsOnlyBetweenItems) {
    for (const auto &[menu, names] : Menus()) {
        ASSERT_FALSE(names.empty()) << menu;
        EXPECT_NE(names.front(), "-") << menu;
        EXPECT_NE(names.back(), "-") << menu;
        for (std::size_t i = 1; i < names.size(); ++i)
            EXPECT_FALSE(names[i] == "-" && names[i - 1] == "-") << menu;
    }
}

TEST(Menus, GiveSeparatorsAndMenusNoShortcutAndNoButton) {
    for (const Command &command : Commands())
        if (command.IsSeparator() || command.IsMenu()) {
            EXPECT_STREQ(command.Key, "") << command.Name;
            EXPECT_FALSE(command.IsToolButton()) << command.Name;
        }
}

TEST(TheTableOfCommands, GivesEveryCommandAnItemOrAButton) {
    for (const Command &command : Commands())
        if (command.Run) {
            EXPECT_TRUE(command.IsMenuItem() || command.IsToolButton()) << command.Name;
        }
}

TEST(TheTableOfCommands, GivesATurnOfItsOwnToWhatNeedsADocument) {
    std::set<int> turns;
    for (const Command &command : Commands())
        if (command.Enabled.Needs == Needs::Document) {
            EXPECT_TRUE(turns.insert(command.Enabled.Turn).second) << command.Name;
        }
}

/// The help page's buttons follow its history, so that no menu item may wait for it.
TEST(TheTableOfCommands, LetsOnlyButtonsWaitForTheHelpPage) {
    for (const Command &command : Commands())
        if (command.Enabled.Needs == Needs::HelpPage) {
            EXPECT_FALSE(command.IsMenuItem()) << command.Name;
        }
}

} // namespace
} // namespace Quillbox
