// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/SyncTabs.h"

#include "fakes/FakeMainWindow.h"
#include "state/DocumentRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SyncingTabs : public testing::Test {
  protected:
    SyncingTabs() {
        Tabs.Captions = {"Ayuda", "a.prg", "b.prg"};
        Registry.Documents[1].FileName = "a.prg";
        Registry.Documents[2].FileName = "b.prg";
        Registry.DocumentCount = 2;
    }
    std::vector<std::string> CallsAt(int currentIndex, int selectedTab) {
        Registry.CurrentIndex = currentIndex;
        Tabs.Selected = selectedTab;
        SyncTabs(Registry, Tabs);
        return Log.Calls();
    }

    CallLog Log;
    FakeTabStrip Tabs{Log};
    DocumentRegistry Registry;
};

TEST_F(SyncingTabs, SelectsTheTabOfTheCurrentDocumentAndThenRefreshesIt) {
    EXPECT_THAT(CallsAt(2, 1), ElementsAre("tabs.SelectTab 3", "tabs.SetTabCaption 3 b.prg"));
}

TEST_F(SyncingTabs, OnlyRefreshesATabThatIsSelectedAlready) {
    EXPECT_THAT(CallsAt(1, 2), ElementsAre("tabs.SetTabCaption 2 a.prg"));
}

TEST_F(SyncingTabs, SelectsTheHelpTabAndKeepsItsCaption) {
    EXPECT_THAT(CallsAt(0, 3), ElementsAre("tabs.SelectTab 1"));
}

TEST_F(SyncingTabs, LeavesASelectedHelpTabAlone) { EXPECT_THAT(CallsAt(0, 1), IsEmpty()); }

TEST_F(SyncingTabs, SelectsATabWhenNoneIsSelected) {
    EXPECT_THAT(CallsAt(0, 0), ElementsAre("tabs.SelectTab 1"));
}

TEST_F(SyncingTabs, ShowsAChangedName) {
    Registry.Documents[1].FileName = "nuevo.prg";

    CallsAt(1, 2);

    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "nuevo.prg", "b.prg"));
}

} // namespace
} // namespace Quillbox
