// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Dialogs;
class Files;
class Programs;
enum class WindowStyle;

/// The programs that lie in folders below the program folder, and the system's own viewer of help
/// pages. They are started and not waited for.
class CompanionPrograms {
  public:
    CompanionPrograms(const QString &appDir, Files &files, Programs &programs, Dialogs &dialogs);

    /// Warns when the program is not in its place. `arguments` follow the executable's path as they
    /// are; neither is quoted.
    void Start(const QString &folder, const QString &executable, WindowStyle style,
               const QString &arguments = {});
    /// Hands a page of the help to the system's own viewer, maximised. The path is not quoted: the
    /// explorer takes the rest of its command line as one path.
    void ShowHelpPage(const QString &page);

  private:
    QString AppDir_;
    Files &Files_;
    Programs &Programs_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
