// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpCommands.h"

#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheHelpCommands : public FakeProgram {
  protected:
    HelpCommands Rules{Registry, Options, Help, Walk};
};

TEST_F(TheHelpCommands, ContextualHelpDoesNothingOnTheHelpPage) {
    Open({"/j/a.prg"});
    Walk.mnuVentana_Ayuda_Click();
    Log.Clear();

    Rules.mnuAyuda_Contextual_Click();

    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(EditorOf(1).SelectionQueries, 0);
}

TEST_F(TheHelpCommands, ContextualHelpDoesNothingWithoutDocuments) {
    Rules.mnuAyuda_Contextual_Click();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(TheHelpCommands, ContextualHelpSwitchesToTheHelpPageAsItStands) {
    Open({"/j/a.prg", "/j/b.prg"});
    EditorOf(2).Word = "Cls";

    Rules.mnuAyuda_Contextual_Click();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Log.CallsOf({"tabs.", "help."}), ElementsAre("tabs.SelectTab 1", "help.SetFocus"));
    EXPECT_FALSE(Main.Enabled["mnuEdicion"]);
}

TEST_F(TheHelpCommands, ContextualHelpAsksOnlyTheCurrentEditorWhereItIsAndWhatItHolds) {
    Open({"/j/a.prg", "/j/b.prg"});
    for (int position : {1, 2})
        EditorOf(position).SelectionQueries = EditorOf(position).WordQueries = 0;

    Rules.mnuAyuda_Contextual_Click();

    EXPECT_EQ(EditorOf(2).SelectionQueries, 1);
    EXPECT_EQ(EditorOf(2).WordQueries, 1);
    EXPECT_EQ(EditorOf(1).SelectionQueries, 0);
    EXPECT_EQ(EditorOf(1).WordQueries, 0);
}

TEST_F(TheHelpCommands, TheHomeButtonShowsTheChosenPageAndThenComesForward) {
    Open({"/j/a.prg"});
    Options.HelpPath = R"(C:\Fenix\docs\index.xml)";

    Rules.tbEstandar_Inicio_Click();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Log.CallsOf({"help.", "tabs."}),
                ElementsAre(R"(help.Navigate C:\Fenix\docs\index.xml)", "tabs.SelectTab 1",
                            "help.SetFocus"));
}

TEST_F(TheHelpCommands, TheBackButtonFollowsTheViewersCommandTwo) {
    htmlAyuda_CommandStateChange(2, true, Main);
    htmlAyuda_CommandStateChange(2, false, Main);
    EXPECT_THAT(Log.Calls(), ElementsAre("main.EnableToolButtons Atrás true",
                                         "main.EnableToolButtons Atrás false"));
}

TEST_F(TheHelpCommands, TheForwardButtonFollowsTheViewersCommandOne) {
    htmlAyuda_CommandStateChange(1, true, Main);
    htmlAyuda_CommandStateChange(1, false, Main);
    EXPECT_THAT(Log.Calls(), ElementsAre("main.EnableToolButtons Adelante true",
                                         "main.EnableToolButtons Adelante false"));
}

TEST_F(TheHelpCommands, NoButtonFollowsOtherCommandsOfTheViewer) {
    for (const int command : {-1, 0, 3, 4})
        htmlAyuda_CommandStateChange(command, true, Main);
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

} // namespace
} // namespace Quillbox
