// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace Quillbox {

class Dialogs;
class PrivateProfile;
struct Project;

/// The text boxes of frmNewProject.
struct NewProjectTexts {
    QString Title;
    QString Author;
    QString MainSource;
    QString Target; ///< the project file to make
};

enum class DialogState { Stays, Closes };

/// What frmNewProject decides.
class NewProject {
  public:
    NewProject(Project &project, PrivateProfile &profile, Dialogs &dialogs);

    /// The main source that the person chose; empty when the person cancels.
    std::optional<QString> cmdBrowse_Click();
    /// The project file that the person chose; empty when the person cancels.
    std::optional<QString> cmdBrowseTarget_Click();
    /// With an empty text box refuses; otherwise writes the project file, without other sources and
    /// tasks, and makes it the open project's file. A file that is there keeps what else it holds.
    DialogState cmdAceptar_Click(const NewProjectTexts &texts);

  private:
    Project &Project_;
    PrivateProfile &Profile_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
