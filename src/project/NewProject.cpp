// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/NewProject.h"

#include "project/ProjectFile.h"
#include "state/Language.h"
#include "state/Project.h"
#include "surfaces/Dialogs.h"

namespace Quillbox {

NewProject::NewProject(Project &project, PrivateProfile &profile, Dialogs &dialogs)
    : Project_(project)
    , Profile_(profile)
    , Dialogs_(dialogs) {}

std::optional<QString> NewProject::cmdBrowse_Click() {
    return Dialogs_.ShowOpen({FileChooserFlags::FileMustExist, SourceLanguage.SourceFilter});
}

std::optional<QString> NewProject::cmdBrowseTarget_Click() {
    return Dialogs_.ShowSave({FileChooserFlags::OverwritePrompt, ProjectFilter});
}

DialogState NewProject::cmdAceptar_Click(const NewProjectTexts &texts) {
    if (texts.Target.isEmpty() || texts.Title.isEmpty() || texts.Author.isEmpty() ||
        texts.MainSource.isEmpty()) {
        Dialogs_.ShowMessage(
            {QStringLiteral("Debes rellenar todos los campos para poder continuar."),
             QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
        return DialogState::Stays;
    }
    WriteProject({.File = texts.Target,
                  .Title = texts.Title,
                  .Author = texts.Author,
                  .MainSource = texts.MainSource,
                  .OtherSources = {},
                  .ToDoList = {}},
                 Profile_);
    Project_.File = texts.Target;
    return DialogState::Closes;
}

} // namespace Quillbox
