// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectCommands.h"

#include "base/ResumeNext.h"
#include "documents/DocumentCommands.h"
#include "project/ProjectFile.h"
#include "state/Project.h"
#include "surfaces/Dialogs.h"
#include "surfaces/FileExists.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

ProjectCommands::ProjectCommands(const ProjectParts &parts)
    : Parts_(parts) {}

void ProjectCommands::OpenProject(const QString &path) {
    if (!path.isEmpty())
        return ReadOpenProject(path);
    const auto chosen = Parts_.Questions.ShowOpen({FileChooserFlags::FileMustExist, ProjectFilter});
    if (chosen)
        ReadOpenProject(*chosen);
}

void ProjectCommands::ReadOpenProject(const QString &path) {
    ResumeNext steps;
    Parts_.Open.File = path;
    steps.Try([this] { ReadProject(Parts_.Open, Parts_.Profile); });
    steps.Try([this] { Parts_.Main.SetCaption(ProjectCaption(Parts_.Open.Title)); });
    steps.Try([this] { EnableProjectMenus(Parts_.Main, true); });
    steps.Try([this] { OpenMainSource(); });
}

void ProjectCommands::OpenMainSource() {
    const QString source = Parts_.Open.MainSource;
    if (FileExists(source, Parts_.Stored, Parts_.Questions))
        Parts_.Documents.OpenDocument(source);
}

void ProjectCommands::mnuArchivo_AbrirProyecto_Click() { OpenProject(QString()); }

void ProjectCommands::mnuArchivo_GuardarProyecto_Click() {
    WriteProject(Parts_.Open, Parts_.Profile);
    Parts_.Open.Modified = false;
}

void ProjectCommands::mnuArchivo_GuardarProyectoComo_Click() {
    const auto chosen =
        Parts_.Questions.ShowSave({FileChooserFlags::OverwritePrompt, ProjectFilter});
    if (!chosen)
        return;
    ResumeNext steps;
    Parts_.Open.File = *chosen;
    steps.Try([this] { mnuArchivo_GuardarProyecto_Click(); });
}

void ProjectCommands::mnuArchivo_CerrarProyecto_Click() {
    if (Parts_.Open.Modified) {
        const MessageAnswer answer = Parts_.Questions.ShowMessage(
            {QStringLiteral("El proyecto ha sido modificado, ¿quieres guardar los cambios?"),
             QStringLiteral("Aviso"), MessageIcon::Exclamation, MessageButtons::YesNoCancel});
        if (answer == MessageAnswer::Cancel)
            return;
        if (answer == MessageAnswer::Yes)
            mnuArchivo_GuardarProyecto_Click();
    }
    Parts_.Open.File.clear();
    Parts_.Main.SetCaption(NoProjectCaption);
    EnableProjectMenus(Parts_.Main, false);
}

void ProjectCommands::mnuArchivo_NuevoProyecto_Click() {
    if (!Parts_.Open.File.isEmpty())
        mnuArchivo_CerrarProyecto_Click();
    Parts_.ShowNewProject();
    if (!Parts_.Open.File.isEmpty())
        OpenProject(Parts_.Open.File);
}

} // namespace Quillbox
