// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectInfo.h"

#include "documents/DocumentCommands.h"
#include "project/PackedLists.h"
#include "state/Language.h"
#include "state/Project.h"
#include "surfaces/Dialogs.h"
#include "surfaces/EventLoop.h"
#include "surfaces/FileExists.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

ProjectInfo::ProjectInfo(const ProjectInfoParts &parts)
    : Parts_(parts) {}

ProjectInfoTexts ProjectInfo::Form_Load() const {
    const Project &project = Parts_.Open;
    return {project.File, project.Title, project.Author, project.MainSource,
            QStringList(project.MainSource) + UnpackOtherSources(project.OtherSources)};
}

void ProjectInfo::Form_Unload(const ProjectInfoTexts &texts) {
    Project &project = Parts_.Open;
    if (texts.Title != project.Title || texts.Author != project.Author)
        project.Modified = true;
    project.Title = texts.Title;
    project.Author = texts.Author;
    project.OtherSources = PackOtherSources(texts.Files.mid(1));
}

std::optional<QString> ProjectInfo::cmdAñadir_Click() {
    const auto chosen = Parts_.Questions.ShowOpen(
        {FileChooserFlags::FileMustExist, SourceLanguage.FurtherSourceFilter});
    if (chosen)
        Parts_.Open.Modified = true;
    return chosen;
}

bool ProjectInfo::cmdBorrar_Click(std::optional<int> selected) {
    if (!selected)
        return false;
    if (*selected == 0) {
        Parts_.Questions.ShowMessage({QStringLiteral("No puedes borrar el archivo principal."),
                                      QStringLiteral("Error"), MessageIcon::Critical,
                                      MessageButtons::Ok});
        return false;
    }
    Parts_.Open.Modified = true;
    return true;
}

void ProjectInfo::lstFiles_DblClick(const std::optional<QString> &selected) {
    if (selected && FileExists(*selected, Parts_.Stored, Parts_.Questions))
        Parts_.Documents.OpenDocument(*selected);
    Parts_.Main.Activate();
    Parts_.Events.ProcessPendingEvents();
}

} // namespace Quillbox
