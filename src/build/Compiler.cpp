// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/Compiler.h"

#include "base/ResumeNext.h"
#include "build/CompilerLog.h"
#include "build/modExecCMD.h"
#include "documents/FileNames.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

constexpr int FinalLineEnd = 2;

} // namespace

Compiler::Compiler(ConsoleProcess &console, EventLoop &events, MainWindow &mainWindow,
                   CompilerLog &log)
    : Console_(console)
    , Events_(events)
    , MainWindow_(mainWindow)
    , CompilerLog_(log) {}

void Compiler::Compile(const QString &commandLine) {
    const QString output = Run(commandLine);
    MainWindow_.SetLog(WithoutLast(output, FinalLineEnd));
    CompilerLog_.ShowCompilerErrors(output);
}

void Compiler::Compile(const QString &commandLine, ResumeNext &guard) {
    const QString output = Run(commandLine);
    guard.Try([&] { MainWindow_.SetLog(WithoutLast(output, FinalLineEnd)); });
    guard.Try([&] { CompilerLog_.ShowCompilerErrors(output); });
}

QString Compiler::Run(const QString &commandLine) {
    return ExecCmd(commandLine, Console_, Events_);
}

bool Compiler::TakeErrorFound() { return std::exchange(CompilerLog_.CompileErrorFound, false); }

} // namespace Quillbox
