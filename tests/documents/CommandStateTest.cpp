// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/CommandState.h"

#include "app/CommandsToSwitch.h"
#include "fakes/FakeMainWindow.h"
#include "fakes/FakeSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class CommandStateOfTheMainWindow : public testing::Test {
  protected:
    CallLog Log;
    FakeDisk Disk;
    FakeMainWindow Main{Log, Disk};
    FakeEventLoop Events{Log};
    CommandState Commands{Main, Events, CommandsToSwitch()};
};

TEST_F(CommandStateOfTheMainWindow, EnablesTheDocumentCommandsInOrderAndShowsThatAtOnce) {
    Commands.UpdateCommandState(true);

    EXPECT_THAT(
        Log.Calls(),
        ElementsAre("main.EnableCommand mnuEdicion true", "main.EnableCommand mnuPrograma true",
                    "main.EnableCommand mnuArchivo_Guardar true",
                    "main.EnableCommand mnuArchivo_GuardarComo true",
                    "main.EnableCommand mnuArchivo_Imprimir true",
                    "main.EnableCommand mnuArchivo_Cerrar true",
                    "main.EnableCommand mnuVentana true", "main.EnableToolButtons Guardar true",
                    "main.EnableToolButtons Imprimir true", "main.EnableToolButtons Cerrar true",
                    "main.EnableToolButtons Buscar true", "main.EnableToolButtons Deshacer true",
                    "main.EnableToolButtons Rehacer true", "main.EnableToolButtons Cortar true",
                    "main.EnableToolButtons Copiar true", "main.EnableToolButtons Pegar true",
                    "main.EnableToolButtons Ejecutar true", "events.ProcessWindowEvents"));
}

TEST_F(CommandStateOfTheMainWindow, DisablesExactlyWhatItEnables) {
    Commands.UpdateCommandState(true);
    const std::map<QString, bool> enabled = Main.Enabled;

    Commands.UpdateCommandState(false);

    EXPECT_EQ(Main.Enabled.size(), enabled.size());
    for (const auto &[name, state] : Main.Enabled) {
        EXPECT_TRUE(enabled.contains(name)) << name.toStdString();
        EXPECT_FALSE(state) << name.toStdString();
    }
}

TEST_F(CommandStateOfTheMainWindow, EnablesTheWindowMenuAlone) {
    Commands.EnableWindowMenu();

    EXPECT_THAT(Log.Calls(), ElementsAre("main.EnableCommand mnuVentana true"));
}

TEST_F(CommandStateOfTheMainWindow, SwitchesTheProjectItemsInOrder) {
    Commands.EnableProjectMenus(true);
    Commands.EnableProjectMenus(false);

    EXPECT_THAT(Log.Calls(), ElementsAre("main.EnableCommand mnuArchivo_GuardarProyecto true",
                                         "main.EnableCommand mnuArchivo_GuardarProyectoComo true",
                                         "main.EnableCommand mnuArchivo_CerrarProyecto true",
                                         "main.EnableCommand mnuArchivo_GuardarProyecto false",
                                         "main.EnableCommand mnuArchivo_GuardarProyectoComo false",
                                         "main.EnableCommand mnuArchivo_CerrarProyecto false"));
}

} // namespace
} // namespace Quillbox
