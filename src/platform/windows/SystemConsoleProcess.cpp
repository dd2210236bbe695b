// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemConsoleProcess.h"

#include "platform/windows/WindowsApi.h"

namespace Quillbox {

namespace {

SystemHandle ToSystemHandle(HANDLE handle) { return reinterpret_cast<SystemHandle>(handle); }

HANDLE ToHandle(SystemHandle handle) { return reinterpret_cast<HANDLE>(handle); }

STARTUPINFOW HiddenWithOutput(SystemHandle standardOutput) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
    startup.wShowWindow = SW_HIDE;
    startup.hStdOutput = ToHandle(standardOutput);
    return startup;
}

} // namespace

std::optional<PipeHandles> SystemConsoleProcess::CreatePipe(std::size_t size) {
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (::CreatePipe(&readEnd, &writeEnd, &inheritable, static_cast<DWORD>(size)) == 0) {
        LastError_ = static_cast<int>(::GetLastError());
        return std::nullopt;
    }
    ::SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    Open_.insert({ToSystemHandle(readEnd), ToSystemHandle(writeEnd)});
    return PipeHandles{ToSystemHandle(readEnd), ToSystemHandle(writeEnd)};
}

std::optional<ProcessHandles> SystemConsoleProcess::StartProcess(const QString &commandLine,
                                                                 SystemHandle standardOutput) {
    // The system writes into the command line while it looks for the program.
    std::wstring text = commandLine.toStdWString();
    STARTUPINFOW startup = HiddenWithOutput(standardOutput);
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, text.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS,
                         nullptr, nullptr, &startup, &process) == 0) {
        LastError_ = static_cast<int>(::GetLastError());
        return std::nullopt;
    }
    const ProcessHandles handles{ToSystemHandle(process.hProcess), ToSystemHandle(process.hThread)};
    Open_.insert({handles.Process, handles.Thread});
    return handles;
}

void SystemConsoleProcess::WaitForProcess(SystemHandle process) {
    ::WaitForSingleObject(ToHandle(process), INFINITE);
}

std::optional<QByteArray> SystemConsoleProcess::ReadFile(SystemHandle readEnd,
                                                         std::size_t capacity) {
    QByteArray bytes(static_cast<qsizetype>(capacity), Qt::Uninitialized);
    DWORD count = 0;
    if (::ReadFile(ToHandle(readEnd), bytes.data(), static_cast<DWORD>(capacity), &count,
                   nullptr) == 0) {
        LastError_ = static_cast<int>(::GetLastError());
        return std::nullopt;
    }
    bytes.truncate(static_cast<qsizetype>(count));
    return bytes;
}

void SystemConsoleProcess::CloseHandle(SystemHandle handle) {
    if (Open_.erase(handle) == 1)
        ::CloseHandle(ToHandle(handle));
}

} // namespace Quillbox
