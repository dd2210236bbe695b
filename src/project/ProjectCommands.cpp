// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectCommands.h"

#include "base/ResumeNext.h"
#include "project/ProjectDisplay.h"
#include "project/ProjectFile.h"
#include "project/ProjectSources.h"
#include "state/Project.h"
#include "surfaces/Dialogs.h"

namespace Quillbox {

ProjectCommands::ProjectCommands(Project &project, PrivateProfile &profile, Dialogs &dialogs,
                                 ProjectSources &sources, ProjectDisplay &display)
    : Project_(project)
    , Profile_(profile)
    , Dialogs_(dialogs)
    , Sources_(sources)
    , Display_(display) {}

void ProjectCommands::OpenProject(const QString &path) {
    if (!path.isEmpty())
        return ReadOpenProject(path);
    const auto chosen = Dialogs_.ShowOpen({FileChooserFlags::FileMustExist, ProjectFilter});
    if (chosen)
        ReadOpenProject(*chosen);
}

void ProjectCommands::ReadOpenProject(const QString &path) {
    ResumeNext steps;
    Project_.File = path;
    steps.Try([this] { ReadProject(Project_, Profile_); });
    steps.Try([this] { Display_.ShowTitle(Project_.Title); });
    steps.Try([this] { Display_.EnableMenus(); });
    steps.Try([this] { Sources_.Open(QString(Project_.MainSource)); });
}

void ProjectCommands::mnuArchivo_AbrirProyecto_Click() { OpenProject(QString()); }

void ProjectCommands::mnuArchivo_GuardarProyecto_Click() {
    WriteProject(Project_, Profile_);
    Project_.Modified = false;
}

void ProjectCommands::mnuArchivo_GuardarProyectoComo_Click() {
    const auto chosen = Dialogs_.ShowSave({FileChooserFlags::OverwritePrompt, ProjectFilter});
    if (!chosen)
        return;
    ResumeNext steps;
    Project_.File = *chosen;
    steps.Try([this] { mnuArchivo_GuardarProyecto_Click(); });
}

void ProjectCommands::mnuArchivo_CerrarProyecto_Click() {
    if (Project_.Modified) {
        const MessageAnswer answer = Dialogs_.ShowMessage(
            {QStringLiteral("El proyecto ha sido modificado, ¿quieres guardar los cambios?"),
             QStringLiteral("Aviso"), MessageIcon::Exclamation, MessageButtons::YesNoCancel});
        if (answer == MessageAnswer::Cancel)
            return;
        if (answer == MessageAnswer::Yes)
            mnuArchivo_GuardarProyecto_Click();
    }
    Project_.File.clear();
    Display_.ShowNone();
}

void ProjectCommands::mnuArchivo_NuevoProyecto_Click(const std::function<void()> &showNewProject) {
    if (!Project_.File.isEmpty())
        mnuArchivo_CerrarProyecto_Click();
    showNewProject();
    if (!Project_.File.isEmpty())
        OpenProject(Project_.File);
}

} // namespace Quillbox
