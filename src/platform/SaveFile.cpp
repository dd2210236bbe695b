// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SaveFile.h"

#include "platform/SaveInPlace.h"

#include <QByteArray>
#include <QRandomGenerator>

namespace Quillbox {

namespace {

/// Nobody can foresee it to put a file of their own there; where names with a full stop are hidden,
/// nobody sees it either.
std::filesystem::path NameBeside(const SaveTarget &target) {
    const quint64 random = QRandomGenerator::system()->generate64();
    return target.Name.parent_path() /
           (".quillbox-" + QByteArray::number(random, 16).toStdString());
}

/// 0 or the system's error number. The name shows the old bytes until the move.
int WriteBeside(const SaveTarget &target, const ByteProducer &produce, const FileSystem &system) {
    const std::filesystem::path name = NameBeside(target);
    const auto file = system.Create(name, target.Exists ? Readers::OwnerAlone : Readers::AsUsual);
    if (file->Error() != 0)
        return file->Error();
    RemovedFile written(system, *file, name);
    produce([&file](std::string_view bytes) { return file->Write(bytes); });
    if (target.Exists)
        file->MakeLike(target.Name);
    file->Sync();
    if (!file->Close())
        return file->Error();
    if (const int error = system.MoveOver(name, target.Name))
        return error;
    written.Keep();
    return system.SyncFolderOf(target.Name);
}

} // namespace

std::optional<FileError> ReplaceContent(const QString &path, const ByteProducer &produce,
                                        const FileSystem &system) {
    const auto found = system.FindSaveTarget(path);
    if (const auto *failure = std::get_if<FileError>(&found))
        return *failure;
    const auto &target = std::get<SaveTarget>(found);
    if (target.HasOtherNames)
        return WriteInPlace(target, produce, system);
    const int error = WriteBeside(target, produce, system);
    return error == 0 ? std::nullopt : std::optional(WriteFailure(error));
}

std::optional<FileError> ReplaceContent(const QString &path, const ByteProducer &produce) {
    return ReplaceContent(path, produce, *MakeFileSystem());
}

std::optional<FileError> ReplaceContent(const QString &path, const QByteArray &content) {
    const std::string_view bytes(content.constData(), static_cast<std::size_t>(content.size()));
    return ReplaceContent(path, [bytes](const ByteSink &sink) { sink(bytes); });
}

} // namespace Quillbox
