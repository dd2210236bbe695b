// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>

namespace Quillbox {

/// One run of the program in its folder.
class ProgramRun {
  public:
    explicit ProgramRun(const QString &folder);
    ~ProgramRun();
    ProgramRun(const ProgramRun &) = delete;
    ProgramRun &operator=(const ProgramRun &) = delete;

    /// Without a command prefix the program is started as it is.
    bool Start(const QStringList &prefix = {});
    /// True when the program ended by itself in time.
    bool WaitForEnd(int milliseconds = 20000);
    bool IsRunning() const { return Process_.state() == QProcess::Running; }
    int ExitCode() const { return Process_.exitCode(); }
    qint64 ProcessId() const { return Process_.processId(); }
    /// What it wrote to its standard output and error.
    QString Output() { return QString::fromUtf8(Process_.readAll()); }

  private:
    QString Folder_;
    QProcess Process_;
};

/// Copies a folder with everything in it.
bool CopyFolder(const QString &from, const QString &to);

} // namespace Quillbox
