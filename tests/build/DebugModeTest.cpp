// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/DebugMode.h"
#include "BuildProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;

class DebugModeItem : public BuildProgram {
  protected:
    void Click() { Debug.mnuPrograma_ModoDebug_Click(); }
    DebugMode Debug{Main};
};

TEST_F(DebugModeItem, TurnsTheModeAndItsCheckMarkOn) {
    Click();
    EXPECT_TRUE(Debug.IsOn());
    EXPECT_THAT(Log.Calls(), ElementsAre("main.CheckCommand mnuPrograma_ModoDebug true"));
}

TEST_F(DebugModeItem, RestoresTheCheckMarkOnTheSecondClick) {
    Click();
    Click();
    EXPECT_FALSE(Debug.IsOn());
    EXPECT_FALSE(Main.Checked.at(QStringLiteral("mnuPrograma_ModoDebug")));
}

TEST_F(DebugModeItem, ChangesNoCommandLine) {
    Build.mnuPrograma_Ejecutar_Click();
    const auto before = Log.CallsOf({"console.StartProcess", "programs.Start"});
    Click();
    Log.Clear();
    Build.mnuPrograma_Ejecutar_Click();
    EXPECT_EQ(Log.CallsOf({"console.StartProcess", "programs.Start"}), before);
}

} // namespace
} // namespace Quillbox
