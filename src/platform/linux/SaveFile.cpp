// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/linux/CheckedFile.h"
#include "platform/linux/SaveTarget.h"

#include <QRandomGenerator>

#include <cerrno>

namespace Quillbox {

namespace {

constexpr mode_t ModeWhileWriting = S_IRUSR | S_IWUSR;
/// Less what the umask takes away.
constexpr mode_t ModeOfNewFile = 0666;

/// Hidden, and nobody can foresee it to put a file of their own there.
QByteArray NameBeside(const SaveTarget &target) {
    const quint64 random = QRandomGenerator::system()->generate64();
    return target.Folder + "/.quillbox-" + QByteArray::number(random, 16);
}

/// Gives the new file owner and mode of the old one.
void CopyAttributes(CheckedFile &file, const struct stat &old) {
    const struct stat made = file.Status();
    mode_t mode = old.st_mode & 07777;
    const bool sameOwner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (!sameOwner && !file.TrySetOwner(old.st_uid, old.st_gid)) {
        file.TrySetOwner(static_cast<uid_t>(-1), old.st_gid);
        // Of two owners neither may lend the other the rights to run as itself.
        mode &= 0777;
    }
    file.SetMode(mode);
}

/// 0 or the system's error number. The name shows the old bytes until the rename.
int WriteBeside(const SaveTarget &target, const ByteProducer &produce, const SystemCalls &calls) {
    const QByteArray name = NameBeside(target);
    CheckedFile file(calls, name, O_WRONLY | O_CREAT | O_EXCL,
                     target.File ? ModeWhileWriting : ModeOfNewFile);
    if (file.Error() != 0)
        return file.Error();
    RemovedFile written(calls, name);
    produce([&file](std::string_view bytes) { return file.Write(bytes); });
    if (target.File)
        CopyAttributes(file, *target.File);
    file.Sync();
    if (!file.Close())
        return file.Error();
    if (calls.Rename(name.constData(), target.Name.constData()) != 0)
        return errno;
    written.Keep();
    return SyncFolder(target.Folder, calls);
}

} // namespace

std::optional<FileError> ReplaceFile(const QString &path, const ByteProducer &produce,
                                     const SystemCalls &calls) {
    const auto found = FindSaveTarget(path, calls);
    if (const auto *failure = std::get_if<FileError>(&found))
        return *failure;
    const auto &target = std::get<SaveTarget>(found);
    if (target.File && target.File->st_nlink > 1)
        return WriteInPlace(target, produce, calls);
    const int error = WriteBeside(target, produce, calls);
    return error == 0 ? std::nullopt : std::optional(WriteFailure(error));
}

std::optional<FileError> ReplaceFile(const QString &path, const ByteProducer &produce) {
    return ReplaceFile(path, produce, SystemCalls{});
}

} // namespace Quillbox
