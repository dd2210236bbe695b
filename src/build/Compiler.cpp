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

Compiler::Compiler(ConsoleProcess &console, EventLoop &eventLoop, MainWindow &mainWindow,
                   CompilerLog &log)
    : Console_(console)
    , EventLoop_(eventLoop)
    , MainWindow_(mainWindow)
    , Log_(log) {}

void Compiler::Compile(const QString &commandLine) {
    const QString output = Run(commandLine);
    MainWindow_.SetLog(WithoutLast(output, FinalLineEnd));
    Log_.ShowCompilerErrors(output);
}

void Compiler::Compile(const QString &commandLine, ResumeNext &guard) {
    const QString output = Run(commandLine);
    guard.Try([&] { MainWindow_.SetLog(WithoutLast(output, FinalLineEnd)); });
    guard.Try([&] { Log_.ShowCompilerErrors(output); });
}

QString Compiler::Run(const QString &commandLine) {
    return ExecCmd(commandLine, Console_, EventLoop_);
}

} // namespace Quillbox
