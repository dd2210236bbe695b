// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemConsoleProcess.h"

#include "platform/linux/Spawn.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace Quillbox {

namespace {

/// Processes have no threads that could be waited for here; this stands for every one.
constexpr SystemHandle ThreadHandle = INTPTR_MIN;

/// Descriptors are their own handles and never negative, so process handles are.
SystemHandle HandleOfProcess(pid_t process) { return -static_cast<SystemHandle>(process); }

} // namespace

std::optional<PipeHandles> SystemConsoleProcess::CreatePipe(std::size_t size) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        LastError_ = errno;
        return std::nullopt;
    }
    // When the system refuses that much, the pipe works all the same and holds less.
    ::fcntl(ends[1], F_SETPIPE_SZ, static_cast<int>(std::min<std::size_t>(size, INT_MAX)));
    Open_.insert({ends[0], ends[1]});
    return PipeHandles{ends[0], ends[1]};
}

std::optional<ProcessHandles> SystemConsoleProcess::StartProcess(const QString &commandLine,
                                                                 SystemHandle standardOutput) {
    SpawnResult spawned{EBADF, 0};
    if (standardOutput >= 0 && Open_.contains(standardOutput))
        spawned = Spawn(commandLine, static_cast<int>(standardOutput), ChildSession::Ours);
    if (spawned.Error != 0) {
        LastError_ = spawned.Error;
        return std::nullopt;
    }
    Open_.insert(HandleOfProcess(spawned.Process));
    return ProcessHandles{HandleOfProcess(spawned.Process), ThreadHandle};
}

void SystemConsoleProcess::WaitForProcess(SystemHandle process) {
    // The number of a process that was waited for can be given to another one.
    if (process < 0 && Open_.erase(process) == 1)
        WaitForChild(static_cast<pid_t>(-process));
}

std::optional<QByteArray> SystemConsoleProcess::ReadFile(SystemHandle readEnd,
                                                         std::size_t capacity) {
    if (readEnd < 0 || !Open_.contains(readEnd)) {
        LastError_ = EBADF;
        return std::nullopt;
    }
    QByteArray bytes(static_cast<qsizetype>(capacity), Qt::Uninitialized);
    ssize_t count = 0;
    do
        count = ::read(static_cast<int>(readEnd), bytes.data(), capacity);
    while (count < 0 && errno == EINTR);
    if (count < 0) {
        LastError_ = errno;
        return std::nullopt;
    }
    bytes.truncate(count);
    return bytes;
}

void SystemConsoleProcess::CloseHandle(SystemHandle handle) {
    if (Open_.erase(handle) == 0)
        return;
    if (handle >= 0)
        ::close(static_cast<int>(handle));
    else
        WaitForChildInBackground(static_cast<pid_t>(-handle));
}

} // namespace Quillbox
