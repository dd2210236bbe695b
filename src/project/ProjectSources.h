// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Dialogs;
class DocumentCommands;
class Files;

/// The sources that a project names.
class ProjectSources {
  public:
    ProjectSources(Files &files, Dialogs &dialogs, DocumentCommands &documents);

    /// Opens the source in an editor; warns when there is no such file.
    void Open(const QString &path);

  private:
    Files &Files_;
    Dialogs &Dialogs_;
    DocumentCommands &Documents_;
};

} // namespace Quillbox
