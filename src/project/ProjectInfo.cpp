// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectInfo.h"

#include "project/PackedLists.h"
#include "project/ProjectSources.h"
#include "state/Language.h"
#include "state/Project.h"
#include "surfaces/Dialogs.h"
#include "surfaces/MainWindowActivation.h"

namespace Quillbox {

ProjectInfo::ProjectInfo(Project &project, Dialogs &dialogs, ProjectSources &sources,
                         MainWindowActivation &activation)
    : Project_(project)
    , Dialogs_(dialogs)
    , Sources_(sources)
    , Activation_(activation) {}

ProjectInfoTexts ProjectInfo::Form_Load() const {
    return {Project_.File, Project_.Title, Project_.Author, Project_.MainSource,
            QStringList(Project_.MainSource) + UnpackOtherSources(Project_.OtherSources)};
}

void ProjectInfo::Form_Unload(const ProjectInfoTexts &texts) {
    if (texts.Title != Project_.Title || texts.Author != Project_.Author)
        Project_.Modified = true;
    Project_.Title = texts.Title;
    Project_.Author = texts.Author;
    Project_.OtherSources = PackOtherSources(texts.Files.mid(1));
}

std::optional<QString> ProjectInfo::cmdAñadir_Click() {
    const auto chosen =
        Dialogs_.ShowOpen({FileChooserFlags::FileMustExist, SourceLanguage.FurtherSourceFilter});
    if (chosen)
        Project_.Modified = true;
    return chosen;
}

bool ProjectInfo::cmdBorrar_Click(std::optional<int> selected) {
    if (!selected)
        return false;
    if (*selected == 0) {
        Dialogs_.ShowMessage({QStringLiteral("No puedes borrar el archivo principal."),
                              QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
        return false;
    }
    Project_.Modified = true;
    return true;
}

void ProjectInfo::lstFiles_DblClick(const std::optional<QString> &selected) {
    if (selected)
        Sources_.Open(*selected);
    Activation_.Activate();
}

} // namespace Quillbox
