// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxFileSystem.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <utility>

namespace Quillbox {

namespace {

constexpr mode_t AnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr int MostLinks = 40;

/// The result of one step: 0 or the system's error number.
int CheckFolder(const std::filesystem::path &folder, const SystemCalls &calls) {
    struct stat status {};
    if (calls.Stat(folder.c_str(), &status) != 0)
        return errno;
    if (!S_ISDIR(status.st_mode))
        return ENOTDIR;
    if ((status.st_mode & AnyWriteBit) == 0)
        return EACCES;
    return calls.Access(folder.c_str(), W_OK | X_OK) == 0 ? 0 : errno;
}

FileError ProtectedFile() { return WriteFailure(FileProblem::WriteProtected, EACCES); }

std::optional<FileError> CheckFile(const std::filesystem::path &name, mode_t mode,
                                   const SystemCalls &calls) {
    if (S_ISDIR(mode))
        return WriteFailure(EISDIR);
    if (!S_ISREG(mode))
        return WriteFailure(ENXIO);
    if ((mode & AnyWriteBit) == 0)
        return ProtectedFile();
    if (calls.Access(name.c_str(), W_OK) == 0)
        return std::nullopt;
    return errno == EACCES ? ProtectedFile() : WriteFailure(errno);
}

/// What the symbolic link `name` stands for, seen from the current folder.
std::variant<std::filesystem::path, FileError> ReadLink(const std::filesystem::path &name,
                                                        const SystemCalls &calls) {
    std::string aim(PATH_MAX, '\0');
    const ssize_t size = calls.Readlink(name.c_str(), aim.data(), aim.size());
    if (size < 0)
        return WriteFailure(errno);
    aim.resize(static_cast<std::size_t>(size));
    return FolderOf(name) / aim;
}

/// `status` is empty when there is no file yet.
std::variant<SaveTarget, FileError> CheckedTarget(const std::filesystem::path &name,
                                                  const struct stat *status,
                                                  const SystemCalls &calls) {
    if (const int error = CheckFolder(FolderOf(name), calls))
        return WriteFailure(error);
    if (!status)
        return SaveTarget{name};
    if (const auto error = CheckFile(name, status->st_mode, calls))
        return *error;
    return SaveTarget{name, true, status->st_nlink > 1};
}

} // namespace

std::variant<SaveTarget, FileError> LinuxFileSystem::FindSaveTarget(const QString &path) const {
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return WriteFailure(EINVAL);
    std::filesystem::path name = QFile::encodeName(path).toStdString();
    for (int links = 0; links < MostLinks; ++links) {
        if (!name.has_filename())
            return WriteFailure(EISDIR);
        struct stat status {};
        const int error = Calls_.Lstat(name.c_str(), &status) == 0 ? 0 : errno;
        if (error != 0 && error != ENOENT)
            return WriteFailure(error);
        if (error == ENOENT)
            return CheckedTarget(name, nullptr, Calls_);
        if (!S_ISLNK(status.st_mode))
            return CheckedTarget(name, &status, Calls_);
        auto aim = ReadLink(name, Calls_);
        if (const auto *failure = std::get_if<FileError>(&aim))
            return *failure;
        name = std::get<std::filesystem::path>(std::move(aim));
    }
    return WriteFailure(ELOOP);
}

} // namespace Quillbox
