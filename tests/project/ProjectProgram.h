// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeProgram.h"
#include "project/ProjectCommands.h"
#include "project/ProjectDisplay.h"
#include "project/ProjectSources.h"
#include "state/Project.h"

#include <gmock/gmock.h>

namespace Quillbox {

/// The project rules over fakes. The project file is the fake profile, whatever its path.
class ProjectProgram : public FakeProgram {
  protected:
    /// What the project file holds.
    void StoreProject(const QString &title, const QString &mainSource = QStringLiteral("m.prg")) {
        Profile.Values = {{"Titulo", title}, {"Autor", "Eva"}, {"MainSource", mainSource}};
    }
    /// The main source can be opened.
    void StoreSource(const QString &path) {
        Stored.Contents[path] = "Cls";
        Disk.Texts[path] = QStringLiteral("Cls");
    }
    void OpenFrom(const QString &path) {
        StoreProject(QStringLiteral("Juego"));
        StoreSource(QStringLiteral("m.prg"));
        Projects.OpenProject(path);
        Log.Clear();
    }
    void ClickNewProject() {
        Projects.mnuArchivo_NuevoProyecto_Click([this] {
            Log.Add("frmNewProject");
            InNewProject();
        });
    }
    /// What the project commands ask for, without the steps inside opening a document.
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"profile.", "main.SetCaption", "main.EnableCommand mnuArchivo_GuardarP",
                            "main.EnableCommand mnuArchivo_CerrarP", "files.", "dialogs.",
                            "editor.OpenFile", "frmNewProject"});
    }

    Project Opened;
    std::function<void()> InNewProject = [] {};
    ProjectSources Sources{Stored, Questions, Documents};
    ProjectDisplay Display{Main, Commands};
    ProjectCommands Projects{Opened, Profile, Questions, Sources, Display};
};

} // namespace Quillbox
