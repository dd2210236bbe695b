// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsFile.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace Quillbox {

namespace {

/// Others may go on writing what is only read here, and reading what is written.
DWORD SharingFor(DWORD access) {
    const DWORD reading = FILE_SHARE_READ | FILE_SHARE_DELETE;
    return (access & GENERIC_WRITE) != 0 ? reading : reading | FILE_SHARE_WRITE;
}

} // namespace

WindowsFile::WindowsFile(const std::filesystem::path &name, DWORD access, DWORD creation)
    : Handle_(::CreateFileW(name.c_str(), access, SharingFor(access), nullptr, creation,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {
    Check(Handle_ != INVALID_HANDLE_VALUE);
}

WindowsFile::~WindowsFile() {
    if (Handle_ != INVALID_HANDLE_VALUE)
        ::CloseHandle(Handle_);
}

bool WindowsFile::Check(BOOL succeeded) {
    if (succeeded == 0)
        Fail(::GetLastError());
    return Error_ == 0;
}

void WindowsFile::Fail(DWORD error) {
    if (Error_ == 0)
        Error_ = error;
}

BY_HANDLE_FILE_INFORMATION WindowsFile::Information() {
    BY_HANDLE_FILE_INFORMATION information{};
    if (Error_ == 0)
        Check(::GetFileInformationByHandle(Handle_, &information));
    return information;
}

std::size_t WindowsFile::Size() {
    const BY_HANDLE_FILE_INFORMATION information = Information();
    return static_cast<std::size_t>((std::uint64_t{information.nFileSizeHigh} << 32) |
                                    information.nFileSizeLow);
}

std::filesystem::path WindowsFile::FinalName() {
    constexpr DWORD longestPath = 32768;
    std::wstring name(longestPath, L'\0');
    if (Error_ == 0) {
        name.resize(::GetFinalPathNameByHandleW(Handle_, name.data(), longestPath, 0));
        Check(!name.empty());
    }
    return name;
}

void WindowsFile::RequireFileOnDisk() {
    if (Error_ == 0 && ::GetFileType(Handle_) != FILE_TYPE_DISK)
        Fail(ERROR_BAD_DEV_TYPE);
    if ((Information().dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        Fail(ERROR_DIRECTORY);
}

std::string_view WindowsFile::Read(char *buffer, std::size_t capacity) {
    const std::size_t most = std::numeric_limits<DWORD>::max();
    DWORD count = 0;
    if (Error_ == 0)
        Check(::ReadFile(Handle_, buffer, static_cast<DWORD>(std::min(capacity, most)), &count,
                         nullptr));
    return {buffer, Error_ == 0 ? count : 0};
}

bool WindowsFile::Write(std::string_view bytes) {
    constexpr std::size_t mostAtOnce = 1 << 24;
    while (Error_ == 0 && !bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), mostAtOnce));
        DWORD count = 0;
        Check(::WriteFile(Handle_, bytes.data(), size, &count, nullptr));
        if (count == 0)
            Fail(ERROR_WRITE_FAULT);
        bytes.remove_prefix(count);
    }
    return Error_ == 0;
}

bool WindowsFile::CutAfterWritten() { return Error_ == 0 && Check(::SetEndOfFile(Handle_)); }

/// Owner and permissions are those that the folder gives to each file in it.
void WindowsFile::MakeLike(const std::filesystem::path &model) {
    FILE_BASIC_INFO information{}; // a time of 0 stays as it is
    information.FileAttributes = ::GetFileAttributesW(model.c_str());
    if (Error_ == 0 && Check(information.FileAttributes != INVALID_FILE_ATTRIBUTES))
        Check(
            ::SetFileInformationByHandle(Handle_, FileBasicInfo, &information, sizeof information));
}

bool WindowsFile::Sync() { return Error_ == 0 && Check(::FlushFileBuffers(Handle_)); }

bool WindowsFile::Close() {
    const HANDLE handle = std::exchange(Handle_, INVALID_HANDLE_VALUE);
    return handle == INVALID_HANDLE_VALUE ? Error_ == 0 : Check(::CloseHandle(handle));
}

} // namespace Quillbox
