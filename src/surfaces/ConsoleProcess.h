// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace Quillbox {

/// What a system knows a pipe, a process or a thread by.
using SystemHandle = std::intptr_t;

struct PipeHandles {
    SystemHandle ReadEnd;
    SystemHandle WriteEnd;
};

struct ProcessHandles {
    SystemHandle Process;
    SystemHandle Thread;
};

/// The system's calls for one hidden console process with a piped standard output.
class ConsoleProcess {
  public:
    virtual ~ConsoleProcess() = default;

    /// An anonymous pipe that holds `size` bytes where the system allows it. Empty on failure.
    virtual std::optional<PipeHandles> CreatePipe(std::size_t size) = 0;
    /// Starts the command line hidden, with `standardOutput` as its standard output, no standard
    /// input and no standard error, in the current folder with the current environment. The first
    /// word, quoted or not, is the program; without a folder it is looked for beside this program,
    /// in the current folder and on the search path. Empty on failure.
    virtual std::optional<ProcessHandles> StartProcess(const QString &commandLine,
                                                       SystemHandle standardOutput) = 0;
    /// Returns when the process has ended, however long that takes.
    virtual void WaitForProcess(SystemHandle process) = 0;
    /// One read of at most `capacity` bytes that waits until there is something to read. Empty on
    /// failure.
    virtual std::optional<QByteArray> ReadFile(SystemHandle readEnd, std::size_t capacity) = 0;
    virtual void CloseHandle(SystemHandle handle) = 0;
    /// The system's number for the last failure above.
    virtual int LastError() const = 0;
};

} // namespace Quillbox
