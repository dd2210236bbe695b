// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>

namespace Quillbox {

class Dialogs;
class MainWindowActivation;
class ProjectSources;
struct Project;

/// What frmProjectInfo shows.
struct ProjectInfoTexts {
    QString ProjectPath;
    QString Title;
    QString Author;
    QString MainFile;
    QStringList Files; ///< the main source, then the other sources in stored order
};

/// What frmProjectInfo decides. Entries of its list lstFiles are numbered from 0; the main source
/// is always entry 0.
class ProjectInfo {
  public:
    ProjectInfo(Project &project, Dialogs &dialogs, ProjectSources &sources,
                MainWindowActivation &activation);

    ProjectInfoTexts Form_Load() const;
    /// Takes over what the window shows when it closes. The main source is never changed.
    void Form_Unload(const ProjectInfoTexts &texts);
    /// The path to add as the last entry; empty when the person cancels.
    std::optional<QString> cmdAñadir_Click();
    /// True when the selected entry is to be removed.
    bool cmdBorrar_Click(std::optional<int> selected);
    /// Opens the selected entry's file and brings the main window forward, which happens without a
    /// file, too.
    void lstFiles_DblClick(const std::optional<QString> &selected);

  private:
    Project &Project_;
    Dialogs &Dialogs_;
    ProjectSources &Sources_;
    MainWindowActivation &Activation_;
};

} // namespace Quillbox
