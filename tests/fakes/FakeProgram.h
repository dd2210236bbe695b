// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandsToSwitch.h"
#include "documents/DocumentCommands.h"
#include "documents/Navigation.h"
#include "fakes/FakeMainWindow.h"
#include "fakes/FakeSystem.h"
#include "state/DocumentRegistry.h"
#include "state/settings.h"

#include <gtest/gtest.h>

namespace Quillbox {

/// The main window and the outside of the program as fakes, which share one log.
class FakeSurfaces : public testing::Test {
  protected:
    CallLog Log;
    FakeDisk Disk;
    FakeMainWindow Main{Log, Disk};
    FakeTabStrip Tabs{Log};
    FakeNavigationLists Lists{Log};
    FakeHelpViewer Help{Log};
    FakeDialogs Questions{Log};
    FakeEventLoop Events{Log};
    FakeFiles Stored{Log};
    FakeProfile Profile{Log};
    FakeConsole Console{Log};
    FakePrograms Launcher{Log};
    FakeLanguageRegistration Languages{Log};
};

/// The rules around the documents, with fakes on every side. Clicks on tabs reach the navigation,
/// as in the real program.
class FakeProgram : public FakeSurfaces {
  protected:
    FakeProgram() {
        Tabs.Click = [this](int tab) { Walk.tabDocuments_Click(tab); };
    }

    FakeDocumentWindow &WindowOf(int position) {
        return dynamic_cast<FakeDocumentWindow &>(*Registry.Documents[position].Window);
    }
    FakeEditor &EditorOf(int position) { return WindowOf(position).TextEditor; }

    /// Puts files on the fake disk and opens them in order.
    void Open(const std::vector<QString> &paths) {
        for (const QString &path : paths) {
            Disk.Texts[path] = QStringLiteral("text of ") + path;
            Documents.OpenDocument(path);
        }
        Log.Clear();
    }

    Settings Options;
    DocumentRegistry Registry;
    CommandState Commands{Main, Events, CommandsToSwitch()};
    Navigation Walk{Registry, Tabs, Lists, Help, Commands};
    DocumentCommands Documents{Registry, Main, Tabs, Questions, Commands};
};

} // namespace Quillbox
