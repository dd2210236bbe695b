// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/modExecCMD.h"

#include "base/AnsiText.h"
#include "surfaces/ConsoleProcess.h"
#include "surfaces/EventLoop.h"

namespace Quillbox {
namespace {

constexpr std::size_t PipeSize = 0x100000;
constexpr std::size_t ReadCapacity = 30720;

/// What was opened before the failure stays open: this is settled behaviour of the runner.
QString Failure(const char *call, const ConsoleProcess &console) {
    return QStringLiteral("Error: %1 failed. %2").arg(QLatin1String(call)).arg(console.LastError());
}

} // namespace

QString ExecCmd(const QString &commandLine, ConsoleProcess &console, EventLoop &events) {
    const auto pump = [&] { events.ProcessPendingEvents(); };

    pump();
    const auto pipe = console.CreatePipe(PipeSize);
    pump();
    if (!pipe)
        return Failure("CreatePipe", console);
    pump();
    const auto process = console.StartProcess(commandLine, pipe->WriteEnd);
    pump();
    if (!process)
        return Failure("CreateProcess", console);
    pump();
    console.WaitForProcess(process->Process);
    pump();
    const auto output = console.ReadFile(pipe->ReadEnd, ReadCapacity);
    pump();
    if (!output)
        return Failure("ReadFile", console);
    pump();
    for (const SystemHandle handle :
         {process->Process, process->Thread, pipe->ReadEnd, pipe->WriteEnd})
        console.CloseHandle(handle);
    pump();
    return FromAnsi(*output);
}

} // namespace Quillbox
