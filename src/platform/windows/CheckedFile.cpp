// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/CheckedFile.h"

#include <algorithm>
#include <utility>

namespace Quillbox {

namespace {

/// Others may go on writing what is only read here, and reading what is written.
DWORD SharingFor(DWORD access) {
    const DWORD reading = FILE_SHARE_READ | FILE_SHARE_DELETE;
    return (access & GENERIC_WRITE) != 0 ? reading : reading | FILE_SHARE_WRITE;
}

} // namespace

CheckedFile::CheckedFile(const std::wstring &name, DWORD access, DWORD creation)
    : Handle_(::CreateFileW(name.c_str(), access, SharingFor(access), nullptr, creation,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {
    Check(Handle_ != INVALID_HANDLE_VALUE);
}

CheckedFile::~CheckedFile() {
    if (Handle_ != INVALID_HANDLE_VALUE)
        ::CloseHandle(Handle_);
}

bool CheckedFile::Check(BOOL succeeded) {
    if (succeeded == 0 && Error_ == 0)
        Error_ = ::GetLastError();
    return Error_ == 0;
}

BY_HANDLE_FILE_INFORMATION CheckedFile::Information() {
    BY_HANDLE_FILE_INFORMATION information{};
    if (Error_ == 0)
        Check(::GetFileInformationByHandle(Handle_, &information));
    return information;
}

std::wstring CheckedFile::FinalName() {
    constexpr DWORD longestPath = 32768;
    std::wstring name(longestPath, L'\0');
    if (Error_ == 0) {
        name.resize(::GetFinalPathNameByHandleW(Handle_, name.data(), longestPath, 0));
        Check(!name.empty());
    }
    return name;
}

std::string_view CheckedFile::Read(char *buffer, DWORD capacity) {
    DWORD count = 0;
    if (Error_ == 0)
        Check(::ReadFile(Handle_, buffer, capacity, &count, nullptr));
    return {buffer, Error_ == 0 ? count : 0};
}

bool CheckedFile::Write(std::string_view bytes) {
    constexpr std::size_t mostAtOnce = 1 << 24;
    while (Error_ == 0 && !bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), mostAtOnce));
        DWORD count = 0;
        Check(::WriteFile(Handle_, bytes.data(), size, &count, nullptr));
        if (count == 0 && Error_ == 0)
            Error_ = ERROR_WRITE_FAULT;
        bytes.remove_prefix(count);
    }
    return Error_ == 0;
}

bool CheckedFile::CutAfterWritten() { return Error_ == 0 && Check(::SetEndOfFile(Handle_)); }

bool CheckedFile::Sync() { return Error_ == 0 && Check(::FlushFileBuffers(Handle_)); }

bool CheckedFile::Close() {
    const HANDLE handle = std::exchange(Handle_, INVALID_HANDLE_VALUE);
    return handle == INVALID_HANDLE_VALUE ? Error_ == 0 : Check(::CloseHandle(handle));
}

} // namespace Quillbox
