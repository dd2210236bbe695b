// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SaveTarget.h"

#include "platform/FileErrors.h"
#include "platform/linux/CheckedFile.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <utility>

namespace Quillbox {

namespace {

constexpr mode_t AnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr int MostLinks = 40;

QByteArray FolderOf(const QByteArray &name) {
    const qsizetype slash = name.lastIndexOf('/');
    if (slash < 0)
        return ".";
    return slash == 0 ? QByteArray("/") : name.left(slash);
}

/// The result of one step: 0 or the system's error number.
int CheckFolder(const QByteArray &folder, const SystemCalls &calls) {
    struct stat status {};
    if (calls.Stat(folder.constData(), &status) != 0)
        return errno;
    if (!S_ISDIR(status.st_mode))
        return ENOTDIR;
    if ((status.st_mode & AnyWriteBit) == 0)
        return EACCES;
    return calls.Access(folder.constData(), W_OK | X_OK) == 0 ? 0 : errno;
}

FileError ProtectedFile() {
    return {EACCES, QStringLiteral("El archivo está protegido contra escritura.")};
}

std::optional<FileError> CheckFile(const QByteArray &name, mode_t mode, const SystemCalls &calls) {
    if (S_ISDIR(mode))
        return WriteFailure(EISDIR);
    if (!S_ISREG(mode))
        return WriteFailure(ENXIO);
    if ((mode & AnyWriteBit) == 0)
        return ProtectedFile();
    if (calls.Access(name.constData(), W_OK) == 0)
        return std::nullopt;
    return errno == EACCES ? ProtectedFile() : WriteFailure(errno);
}

/// What the symbolic link `name` stands for, seen from the current folder.
std::variant<QByteArray, FileError> ReadLink(const QByteArray &name, const SystemCalls &calls) {
    QByteArray aim(PATH_MAX, '\0');
    const ssize_t size =
        calls.Readlink(name.constData(), aim.data(), static_cast<std::size_t>(aim.size()));
    if (size < 0)
        return WriteFailure(errno);
    aim.truncate(size);
    return aim.startsWith('/') ? aim : FolderOf(name) + '/' + aim;
}

std::variant<SaveTarget, FileError> CheckedTarget(SaveTarget target, const SystemCalls &calls) {
    if (const int error = CheckFolder(target.Folder, calls))
        return WriteFailure(error);
    if (target.File) {
        if (const auto error = CheckFile(target.Name, target.File->st_mode, calls))
            return *error;
    }
    return target;
}

} // namespace

std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path, const SystemCalls &calls) {
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return WriteFailure(EINVAL);
    QByteArray name = QFile::encodeName(path);
    for (int links = 0; links < MostLinks; ++links) {
        if (name.endsWith('/'))
            return WriteFailure(EISDIR);
        struct stat status {};
        const int error = calls.Lstat(name.constData(), &status) == 0 ? 0 : errno;
        if (error != 0 && error != ENOENT)
            return WriteFailure(error);
        if (error == ENOENT)
            return CheckedTarget({name, FolderOf(name), std::nullopt}, calls);
        if (!S_ISLNK(status.st_mode))
            return CheckedTarget({name, FolderOf(name), status}, calls);
        auto aim = ReadLink(name, calls);
        if (const auto *failure = std::get_if<FileError>(&aim))
            return *failure;
        name = std::get<QByteArray>(std::move(aim));
    }
    return WriteFailure(ELOOP);
}

QByteArray NameWithoutFolder(const QByteArray &path) { return path.mid(path.lastIndexOf('/') + 1); }

int SyncFolder(const QByteArray &folder, const SystemCalls &calls) {
    CheckedFile opened(calls, folder, O_RDONLY | O_DIRECTORY);
    // A folder that may be written but not listed cannot be opened, hence not flushed.
    if (opened.Error() == EACCES)
        return 0;
    opened.Sync();
    opened.Close();
    // Some network file systems flush folders on their own and know no such call.
    return opened.Error() == EINVAL ? 0 : opened.Error();
}

RemovedFile::RemovedFile(const SystemCalls &calls, QByteArray name)
    : Calls_(calls)
    , Name_(std::move(name)) {}

RemovedFile::~RemovedFile() {
    if (!Kept_)
        Calls_.Unlink(Name_.constData());
}

} // namespace Quillbox
