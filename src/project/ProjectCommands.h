// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace Quillbox {

class Dialogs;
class PrivateProfile;
class ProjectDisplay;
class ProjectSources;
struct Project;

/// The File menu's commands on the project.
class ProjectCommands {
  public:
    ProjectCommands(Project &project, PrivateProfile &profile, Dialogs &dialogs,
                    ProjectSources &sources, ProjectDisplay &display);

    /// Makes the file's project the open one and opens its main source. An empty path asks for the
    /// file. A project that was open before is neither asked about nor saved, and whether something
    /// counts as modified stays.
    void OpenProject(const QString &path);

    void mnuArchivo_AbrirProyecto_Click();
    void mnuArchivo_GuardarProyecto_Click();
    /// The caption of the main window keeps the title that it had.
    void mnuArchivo_GuardarProyectoComo_Click();
    /// Asks about changes. Only `File` is emptied: what the person dropped still counts as
    /// modified, so that the next project asks, too.
    void mnuArchivo_CerrarProyecto_Click();
    /// `showNewProject` shows frmNewProject until it is closed; a project that it made is then the
    /// record's `File`. A project that stays open, because both the question and the dialog were
    /// cancelled, is read again from its file.
    void mnuArchivo_NuevoProyecto_Click(const std::function<void()> &showNewProject);

  private:
    void ReadOpenProject(const QString &path);

    Project &Project_;
    PrivateProfile &Profile_;
    Dialogs &Dialogs_;
    ProjectSources &Sources_;
    ProjectDisplay &Display_;
};

} // namespace Quillbox
