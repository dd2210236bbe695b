// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class CompilerLog;
class ConsoleProcess;
class EventLoop;
class MainWindow;
class ResumeNext;

/// Runs the compiler and shows what it printed.
class Compiler {
  public:
    Compiler(ConsoleProcess &console, EventLoop &events, MainWindow &mainWindow, CompilerLog &log);

    /// Runs the command line, puts the output less its last two characters, the final line end,
    /// into the log pane and reads it for errors. An output of less than two characters is run-time
    /// error 5.
    void Compile(const QString &commandLine);
    /// The same, each step guarded: a failing step is passed over.
    void Compile(const QString &commandLine, ResumeNext &guard);
    /// Whether the last run has led to an error; asked again it has not.
    bool TakeErrorFound();

  private:
    QString Run(const QString &commandLine);

    ConsoleProcess &Console_;
    EventLoop &Events_;
    MainWindow &MainWindow_;
    CompilerLog &CompilerLog_;
};

} // namespace Quillbox
