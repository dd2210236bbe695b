// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Toolbar.h"

#include "fakes/CallLog.h"
#include "fakes/HoldsInOrder.h"
#include "state/DocumentRegistry.h"
#include "state/Project.h"

#include <set>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Case {
    const char *Tooltip;
    const char *Command;
};

constexpr Case AlwaysWorking[] = {
    {"Nuevo", "mnuArchivo_Nuevo"},
    {"Abrir", "mnuArchivo_Abrir"},
    {"Guardar", "mnuArchivo_Guardar"},
    {"Imprimir", "mnuArchivo_Imprimir"},
    {"Cerrar", "mnuArchivo_Cerrar"},
    {"Configuración", "mnuHerramientas_Configuracion"},
    {"Buscar", "mnuEdicion_BuscarReemplazar"},
    {"Deshacer", "mnuEdicion_Deshacer"},
    {"Rehacer", "mnuEdicion_Rehacer"},
    {"Cortar", "mnuEdicion_Cortar"},
    {"Copiar", "mnuEdicion_Copiar"},
    {"Pegar", "mnuEdicion_Pegar"},
    {"Ejecutar", "mnuPrograma_Ejecutar"},
    {"Abrir Proyecto", "mnuArchivo_AbrirProyecto"},
    {"Explorador Media", "mnuHerramientas_ExploradorMedia"},
    {"Inicio", "tbEstandar_Inicio"},
    {"Salir", "mnuArchivo_Salir"},
};

constexpr Case NeedingAProject[] = {
    {"Información del Proyecto", "tbEstandar_InformacionProyecto"},
    {"Tareas Pendientes", "tbEstandar_TareasPendientes"},
};

constexpr Case NeedingTheHelpPage[] = {
    {"Atrás", "tbEstandar_Atras"},
    {"Adelante", "tbEstandar_Adelante"},
};

class ToolbarClicks : public testing::Test {
  protected:
    std::vector<std::string> CallsOfClick(const char *tooltip) {
        Log.Clear();
        Toolbar.tbEstandar_ButtonClick(QString::fromUtf8(tooltip));
        return Log.Calls();
    }

    CallLog Log;
    DocumentRegistry Registry;
    Project OpenProject;
    ToolbarDispatch Toolbar{Registry, OpenProject, [this](const Command &command) {
                                Log.Add("run", QString::fromUtf8(command.Name));
                            }};
};

TEST_F(ToolbarClicks, RunTheCommandOfTheirTooltip) {
    for (const Case &one : AlwaysWorking)
        EXPECT_THAT(CallsOfClick(one.Tooltip), ElementsAre(std::string("run ") + one.Command))
            << one.Tooltip;
}

TEST_F(ToolbarClicks, RunTheSameCommandsWithADocumentAndAProject) {
    Registry.CurrentIndex = 1;
    OpenProject.File = "/j/juego.fp";

    for (const Case &one : AlwaysWorking)
        EXPECT_THAT(CallsOfClick(one.Tooltip), ElementsAre(std::string("run ") + one.Command))
            << one.Tooltip;
}

TEST_F(ToolbarClicks, ReachProjectDialogsOnlyWhileAProjectIsOpen) {
    for (const Case &one : NeedingAProject) {
        OpenProject.File.clear();
        EXPECT_THAT(CallsOfClick(one.Tooltip), IsEmpty()) << one.Tooltip;
        OpenProject.File = "/j/juego.fp";
        EXPECT_THAT(CallsOfClick(one.Tooltip), ElementsAre(std::string("run ") + one.Command))
            << one.Tooltip;
    }
}

TEST_F(ToolbarClicks, TurnHelpPagesOnlyWhileTheHelpPageIsActive) {
    for (const Case &one : NeedingTheHelpPage) {
        Registry.CurrentIndex = 0;
        EXPECT_THAT(CallsOfClick(one.Tooltip), ElementsAre(std::string("run ") + one.Command))
            << one.Tooltip;
        Registry.CurrentIndex = 1;
        EXPECT_THAT(CallsOfClick(one.Tooltip), IsEmpty()) << one.Tooltip;
    }
}

TEST_F(ToolbarClicks, DoNothingForAnyOtherTooltip) {
    for (const char *tooltip :
         {"", "nuevo", "NUEVO", "Nuevo ", " Nuevo", "&Nuevo", "Nuevo...", "Guardar como", "Atras",
          "Configuracion", "Abrir proyecto", "AbrirProyecto", "mnuArchivo_Nuevo", "Ayuda"})
        EXPECT_THAT(CallsOfClick(tooltip), IsEmpty()) << tooltip;
}

std::vector<std::string> Tooltips() {
    std::vector<std::string> tooltips;
    for (const Command &command : ToolbarCommands())
        tooltips.emplace_back(command.Button.Tooltip);
    return tooltips;
}

/// Further buttons may stand between them.
TEST(ToolButtons, StandInTheOrderOfDispatch) {
    const std::vector<std::string> order = {"Nuevo",
                                            "Abrir",
                                            "Guardar",
                                            "Imprimir",
                                            "Cerrar",
                                            "Configuración",
                                            "Buscar",
                                            "Deshacer",
                                            "Rehacer",
                                            "Cortar",
                                            "Copiar",
                                            "Pegar",
                                            "Ejecutar",
                                            "Abrir Proyecto",
                                            "Información del Proyecto",
                                            "Tareas Pendientes",
                                            "Explorador Media",
                                            "Inicio",
                                            "Atrás",
                                            "Adelante",
                                            "Salir"};
    EXPECT_THAT(Tooltips(), HoldsInOrder(order));
}

TEST(ToolButtons, HaveATooltipAndAPictureOfTheirOwn) {
    std::set<std::string> tooltips;
    std::set<std::string> pictures;
    for (const Command &command : ToolbarCommands()) {
        const ToolButton &button = command.Button;
        EXPECT_STRNE(button.Tooltip, "") << command.Name;
        EXPECT_TRUE(tooltips.insert(button.Tooltip).second) << button.Tooltip;
        EXPECT_STRNE(button.Icon, "") << button.Tooltip;
        EXPECT_TRUE(pictures.insert(button.Icon).second) << button.Icon;
    }
}

TEST(ToolButtons, HaveAPlaceOfTheirOwn) {
    std::set<int> places;
    for (const Command &command : ToolbarCommands())
        EXPECT_TRUE(places.insert(command.Button.Place).second) << command.Button.Tooltip;
}

} // namespace
} // namespace Quillbox
