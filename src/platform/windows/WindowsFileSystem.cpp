// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsFileSystem.h"

#include "platform/windows/WindowsFile.h"

namespace Quillbox {

std::unique_ptr<CheckedFile> WindowsFileSystem::OpenContent(const QString &path) const {
    auto file = std::make_unique<WindowsFile>(NativePath(path), GENERIC_READ, OPEN_EXISTING);
    file->RequireFileOnDisk();
    return file;
}

std::variant<SaveTarget, FileError> WindowsFileSystem::FindSaveTarget(const QString &path) const {
    const std::filesystem::path name = NativePath(path);
    WindowsFile file(name, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (file.Error() == ERROR_FILE_NOT_FOUND)
        return SaveTarget{name};
    file.RequireFileOnDisk();
    const BY_HANDLE_FILE_INFORMATION information = file.Information();
    const std::filesystem::path finalName = file.FinalName();
    if (file.Error() != 0)
        return WriteFailure(file.Error());
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0)
        return WriteFailure(ERROR_FILE_READ_ONLY);
    return SaveTarget{finalName, true, information.nNumberOfLinks > 1};
}

std::unique_ptr<CheckedFile> WindowsFileSystem::Open(const std::filesystem::path &name,
                                                     FileAccess access) const {
    const DWORD rights = access == FileAccess::Reading ? GENERIC_READ : GENERIC_WRITE;
    return std::make_unique<WindowsFile>(name, rights, OPEN_EXISTING);
}

/// Who may read it is what the folder says, for each file in it.
std::unique_ptr<CheckedFile> WindowsFileSystem::Create(const std::filesystem::path &name,
                                                       Readers) const {
    return std::make_unique<WindowsFile>(name, GENERIC_WRITE, CREATE_NEW);
}

int WindowsFileSystem::MoveOver(const std::filesystem::path &from,
                                const std::filesystem::path &to) const {
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return ::MoveFileExW(from.c_str(), to.c_str(), flags) != 0 ? 0
                                                               : static_cast<int>(::GetLastError());
}

/// The moves are written through, and new names are with the file's own flush.
int WindowsFileSystem::SyncFolderOf(const std::filesystem::path &) const { return 0; }

void WindowsFileSystem::Remove(const std::filesystem::path &name) const {
    ::DeleteFileW(name.c_str());
}

std::unique_ptr<const FileSystem> MakeFileSystem() { return std::make_unique<WindowsFileSystem>(); }

} // namespace Quillbox
