// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandWindows.h"
#include "app/Outside.h"
#include "app/Rules.h"
#include "fakes/FakeFolders.h"
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {

class FakeCommandWindows : public CommandWindows {
  public:
    explicit FakeCommandWindows(CallLog &log)
        : Log_(log) {}

    void ShowAbout() override { Log_.Add("windows.ShowAbout"); }
    void ShowNewProject() override { Log_.Add("windows.ShowNewProject"); }
    void ShowSettings() override { Log_.Add("windows.ShowSettings"); }
    void ShowProjectInfo() override { Log_.Add("windows.ShowProjectInfo"); }
    void ShowToDoList() override { Log_.Add("windows.ShowToDoList"); }
    void ShowMediaBrowser() override { Log_.Add("windows.ShowMediaBrowser"); }

  private:
    CallLog &Log_;
};

/// All rules of the program in the program folder "/q/", with fakes on every side.
class RulesProgram : public FakeSurfaces {
  protected:
    RulesProgram() {
        Tabs.Click = [this](int tab) { On.Navigation.tabDocuments_Click(tab); };
    }

    FakeFolders Disks;
    FakeCommandWindows Windows{Log};
    const Outside System{"/q/", Stored, Profile, Console, Launcher, Questions, Events, Disks};
    Rules On{System, {Main, Tabs, Lists, Help}, Languages, Windows};
};

} // namespace Quillbox
