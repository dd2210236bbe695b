// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemPrograms.h"

#include "base/RuntimeError.h"
#include "platform/windows/WindowsApi.h"

#include <shellapi.h>

namespace Quillbox {

namespace {

RuntimeError ErrorOfStart(DWORD code) {
    switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return FileNotFound();
    case ERROR_ACCESS_DENIED:
        return PermissionDenied();
    default:
        return InvalidArgument();
    }
}

} // namespace

void SystemPrograms::Start(const QString &commandLine, WindowStyle style) {
    // The system writes into the command line while it looks for the program.
    std::wstring text = commandLine.toStdWString();
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(style); // SW_SHOWNORMAL, ...MINIMIZED, ...MAXIMIZED
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(nullptr, text.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS,
                         nullptr, nullptr, &startup, &process) == 0)
        throw ErrorOfStart(::GetLastError());
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

void SystemPrograms::OpenAddress(const QString &address) {
    // The answer is above 32 when all went well, otherwise an error number.
    const auto answer = reinterpret_cast<INT_PTR>(::ShellExecuteW(
        nullptr, L"open", address.toStdWString().c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (answer <= 32)
        throw ErrorOfStart(static_cast<DWORD>(answer));
}

void SystemPrograms::SetVariable(const QString &name, const QString &value) {
    ::SetEnvironmentVariableW(name.toStdWString().c_str(), value.toStdWString().c_str());
}

} // namespace Quillbox
