// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace Quillbox {

class Dialogs;
class DocumentCommands;
class Files;
class MainWindow;
class PrivateProfile;
struct Project;

/// What the commands of a project work with.
struct ProjectParts {
    Project &Open;
    MainWindow &Main;
    PrivateProfile &Profile;
    Files &Stored;
    Dialogs &Questions;
    DocumentCommands &Documents;
    /// Shows frmNewProject until it is closed; a project that it made is then `Open.File`.
    std::function<void()> ShowNewProject;
};

/// The File menu's commands on the project.
class ProjectCommands {
  public:
    explicit ProjectCommands(const ProjectParts &parts);

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
    /// A project that stays open, because both the question and the dialog were cancelled, is read
    /// again from its file.
    void mnuArchivo_NuevoProyecto_Click();

  private:
    void ReadOpenProject(const QString &path);
    void OpenMainSource();

    ProjectParts Parts_;
};

} // namespace Quillbox
