// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/Navigation.h"

#include "fakes/ErrorNumber.h"
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WalkingTheDocuments : public FakeProgram {
  protected:
    void OpenThree() { Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"}); }
    /// Puts the walk at a position as if its tab had been clicked before.
    void StandAt(int position) {
        Registry.CurrentIndex = position;
        Tabs.Selected = position + 1;
        Log.Clear();
    }
    /// What is asked of windows, editors, help and tabs; the commands' state apart.
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"window.", "editor.", "help.", "tabs.", "lists."});
    }
    void FillLists() {
        Lists.Items = {{NavigationList::Functions, {"f1", "f2"}},
                       {NavigationList::Labels, {"l1"}},
                       {NavigationList::Types, {"t1", "t2"}}};
    }
};

/// The navigation alone: a selected tab raises no click.
class WalkingWithSilentTabs : public WalkingTheDocuments {
  protected:
    WalkingWithSilentTabs() {
        OpenThree();
        Tabs.Click = [](int) {};
    }
};

TEST_F(WalkingWithSilentTabs, StepsBackToThePreviousDocument) {
    StandAt(3);

    Walk.ActivatePrevious();

    EXPECT_EQ(Registry.CurrentIndex, 2);
    EXPECT_THAT(Steps(),
                ElementsAre("window.Activate /j/b.prg", "window.Maximize /j/b.prg",
                            "editor.SetFocus", "tabs.SelectTab 3", "tabs.SetTabCaption 3 b.prg"));
}

TEST_F(WalkingWithSilentTabs, EnablesTheDocumentCommandsBeforeADocumentIsActivated) {
    StandAt(3);
    Main.Enabled.clear();

    Walk.ActivatePrevious();

    EXPECT_TRUE(Main.Enabled["mnuEdicion"]);
    EXPECT_THAT(Log.CallsOf({"events.", "window.Activate"}),
                ElementsAre("events.ProcessWindowEvents", "window.Activate /j/b.prg"));
}

TEST_F(WalkingWithSilentTabs, StepsBackFromTheFirstDocumentToTheHelpPage) {
    StandAt(1);
    FillLists();

    Walk.ActivatePrevious();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(), ElementsAre("help.SetFocus", "lists.RemoveItem Functions 0",
                                     "lists.RemoveItem Functions 0", "lists.RemoveItem Labels 0",
                                     "lists.RemoveItem Types 0", "lists.RemoveItem Types 0",
                                     "tabs.SelectTab 1"));
}

TEST_F(WalkingWithSilentTabs, LeavesOnlyTheWindowMenuOnTheHelpPage) {
    StandAt(1);

    Walk.ActivatePrevious();

    EXPECT_FALSE(Main.Enabled["mnuEdicion"]);
    EXPECT_FALSE(Main.Enabled["mnuPrograma"]);
    EXPECT_FALSE(Main.Enabled["mnuArchivo_Cerrar"]);
    EXPECT_FALSE(Main.Enabled["tb:Ejecutar"]);
    EXPECT_TRUE(Main.Enabled["mnuVentana"]);
    EXPECT_THAT(Log.CallsOf({"help.", "events.", "main.EnableCommand mnuVentana"}),
                ElementsAre("help.SetFocus", "main.EnableCommand mnuVentana false",
                            "events.ProcessWindowEvents", "main.EnableCommand mnuVentana true"));
}

TEST_F(WalkingWithSilentTabs, StaysOnTheHelpPageWhenItStepsBackFromThere) {
    StandAt(0);

    Walk.ActivatePrevious();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(), ElementsAre("help.SetFocus"));
}

TEST_F(WalkingWithSilentTabs, StepsForwardFromTheHelpPageToTheFirstDocument) {
    StandAt(0);
    Main.Enabled.clear();

    Walk.ActivateNext();

    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_TRUE(Main.Enabled["mnuEdicion"]);
    EXPECT_THAT(Steps(),
                ElementsAre("window.Activate /j/a.prg", "window.Maximize /j/a.prg",
                            "editor.SetFocus", "tabs.SelectTab 2", "tabs.SetTabCaption 2 a.prg"));
}

TEST_F(WalkingWithSilentTabs, StaysOnTheLastDocumentWhenItStepsForwardFromThere) {
    StandAt(3);

    Walk.ActivateNext();

    EXPECT_EQ(Registry.CurrentIndex, 3);
    EXPECT_THAT(Steps(), ElementsAre("window.Activate /j/c.prg", "window.Maximize /j/c.prg",
                                     "editor.SetFocus", "tabs.SetTabCaption 4 c.prg"));
}

TEST_F(WalkingTheDocuments, ReachesEveryPositionForwardsAndBackwards) {
    OpenThree();
    StandAt(0);
    std::vector<int> positions;

    for (int step = 0; step < 4; ++step) {
        Walk.ActivateNext();
        positions.push_back(Registry.CurrentIndex);
    }
    for (int step = 0; step < 4; ++step) {
        Walk.ActivatePrevious();
        positions.push_back(Registry.CurrentIndex);
    }

    EXPECT_THAT(positions, ElementsAre(1, 2, 3, 3, 2, 1, 0, 0));
    EXPECT_EQ(Tabs.Selected, 1);
}

/// Nothing guards this way: it is open because the help page leaves the Window menu enabled.
TEST_F(WalkingTheDocuments, EndsInRunTimeErrorNineWhenItStepsForwardWithoutDocuments) {
    EXPECT_EQ(ErrorNumberOf([this] { Walk.ActivateNext(); }), 9);

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_TRUE(Main.Enabled["mnuEdicion"]);
    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(WalkingTheDocuments, EndsInRunTimeErrorNineAfterTheLastDocumentWasClosed) {
    Open({"/j/a.prg"});
    Documents.CloseDocument();
    ASSERT_TRUE(Main.Enabled["mnuVentana"]);

    EXPECT_EQ(ErrorNumberOf([this] { Walk.ActivateNext(); }), 9);
}

TEST_F(WalkingTheDocuments, KeepsTheHelpPageWhenItStepsBackWithoutDocuments) {
    Open({"/j/a.prg"});
    Documents.CloseDocument();

    Walk.ActivatePrevious();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_FALSE(Main.Enabled["mnuEdicion"]);
    EXPECT_TRUE(Main.Enabled["mnuVentana"]);
}

TEST_F(WalkingWithSilentTabs, ShowsTheDocumentOfAClickedTab) {
    for (int tab = 2; tab <= 4; ++tab) {
        StandAt(0);

        Walk.tabDocuments_Click(tab);

        EXPECT_EQ(Registry.CurrentIndex, tab - 1);
        EXPECT_EQ(Log.CallsOf({"window.Activate"}).back(),
                  "window.Activate " + WindowOf(tab - 1).Caption().toStdString());
    }
}

TEST_F(WalkingWithSilentTabs, ShowsTheHelpPageOfTheFirstTab) {
    StandAt(3);

    Walk.tabDocuments_Click(1);

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(), ElementsAre("help.SetFocus", "tabs.SelectTab 1"));
}

TEST_F(WalkingTheDocuments, BringsTheHelpPageForwardThroughItsTab) {
    OpenThree();
    StandAt(2);

    Walk.mnuVentana_Ayuda_Click();

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_THAT(Steps(), ElementsAre("tabs.SelectTab 1", "help.SetFocus"));
}

TEST_F(WalkingTheDocuments, LeavesTheHelpPageAloneWhenItIsForward) {
    OpenThree();
    StandAt(0);

    Walk.mnuVentana_Ayuda_Click();

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(WalkingTheDocuments, FollowsAWindowThatThePersonActivated) {
    OpenThree();
    StandAt(3);

    Walk.ActivateWindow(&WindowOf(1));

    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Tabs.Selected, 2);
}

TEST_F(WalkingTheDocuments, FollowsTheHelpPageThatThePersonActivated) {
    OpenThree();
    StandAt(3);

    Walk.ActivateWindow(nullptr);

    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_EQ(Tabs.Selected, 1);
}

TEST_F(WalkingTheDocuments, IgnoresTheActivationOfTheActiveDocument) {
    OpenThree();
    StandAt(3);

    Walk.ActivateWindow(&WindowOf(3));

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(WalkingTheDocuments, IgnoresTheActivationOfTheActiveHelpPage) {
    OpenThree();
    StandAt(0);

    Walk.ActivateWindow(nullptr);

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(WalkingTheDocuments, IgnoresTheActivationOfAWindowThatIsNoDocumentYet) {
    OpenThree();
    StandAt(3);
    const FakeDocumentWindow stranger(Log, Disk);

    Walk.ActivateWindow(&stranger);

    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(Registry.CurrentIndex, 3);
}

} // namespace
} // namespace Quillbox
