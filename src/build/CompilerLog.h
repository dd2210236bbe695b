// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Dialogs;
class DocumentCommands;
class Files;
struct DocumentRegistry;

/// Reads the compilers' output and stands the person on the first error.
class CompilerLog {
  public:
    CompilerLog(const QString &appDir, DocumentRegistry &registry, DocumentCommands &documents,
                Files &files, Dialogs &dialogs);

    /// Keeps the output in "CLog.tmp" of the program folder. On the first error line it opens the
    /// named file, highlights the line at the top of the view with the caret at its start, shows
    /// the error line and sets CompileErrorFound. A log file that cannot be written or read back is
    /// run-time error 75.
    void ShowCompilerErrors(const QString &output);

    /// False when reading of a log starts, true once it has located an error.
    bool CompileErrorFound = false;

  private:
    QString KeepLog(const QString &output);
    void ShowLine(const QString &lineText);

    QString LogFile_;
    DocumentRegistry &Registry_;
    DocumentCommands &Documents_;
    Files &Files_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
