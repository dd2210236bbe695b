// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>

namespace Quillbox {

/// One run of the program in its folder. The person's own data and configuration folders are two
/// folders beside that folder, so that a run meets nothing that an earlier one left.
class ProgramRun {
  public:
    explicit ProgramRun(const QString &folder);
    ~ProgramRun();
    ProgramRun(const ProgramRun &) = delete;
    ProgramRun &operator=(const ProgramRun &) = delete;

    /// Without a command prefix the program is started as it is.
    bool Start(const QStringList &prefix = {});
    /// True when the program ended by itself in time.
    bool WaitForEnd(int milliseconds = 30000);
    bool IsRunning() const { return Process_.state() == QProcess::Running; }
    bool HasCrashed() const { return Process_.exitStatus() == QProcess::CrashExit; }
    int ExitCode() const { return Process_.exitCode(); }
    qint64 ProcessId() const { return Process_.processId(); }
    /// Asks the program to end, as the system does when the person logs out.
    void Terminate() { Process_.terminate(); }
    /// What it wrote to its standard output and error.
    QString Output() { return QString::fromUtf8(Process_.readAll()); }
    /// Where the program keeps data for the person.
    QString DataFolder() const { return Folder_ + QStringLiteral("/../datos"); }

  private:
    QString Folder_;
    QProcess Process_;
};

/// Copies a folder with everything in it. A program is linked instead where the system can: it is
/// large, and nobody writes into it.
bool CopyFolder(const QString &from, const QString &to);

/// Writes a new settings file that names the structure checker and the run notice beside the
/// program.
bool PrepareSettings(const QString &folder);

/// The numbers of the processes that the process has started and not yet waited for.
QList<qint64> ChildrenOf(qint64 process);

/// The letter that the system gives for what the process does: S sleeps, Z has ended and nobody
/// waited for it. Empty when there is no such process.
QString StateOf(qint64 process);

/// The system call in which a process sleeps.
struct SystemCall {
    long Number = -1; ///< -1 while it does not sleep in one
    QString File;     ///< behind the descriptor in its first argument: "pipe:[4711]"
};
SystemCall SystemCallOf(qint64 process);

/// The file name of the program that the process runs.
QString ProgramOf(qint64 process);

} // namespace Quillbox
