// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/windows/CheckedFile.h"
#include "platform/windows/SaveTarget.h"

#include <QRandomGenerator>

namespace Quillbox {

namespace {

/// Hidden from nobody, but nobody can foresee it to put a file of their own there.
std::wstring NameBeside(const SaveTarget &target) {
    const quint64 random = QRandomGenerator::system()->generate64();
    return target.Folder() + QStringLiteral(".quillbox-%1").arg(random, 0, 16).toStdWString();
}

/// 0 or the system's error number. The name shows the old bytes until the move.
DWORD MoveOver(const std::wstring &name, const SaveTarget &target) {
    if (target.Exists && ::SetFileAttributesW(name.c_str(), target.Attributes) == 0)
        return ::GetLastError();
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return ::MoveFileExW(name.c_str(), target.Name.c_str(), flags) != 0 ? 0 : ::GetLastError();
}

int WriteBeside(const SaveTarget &target, const ByteProducer &produce) {
    const std::wstring name = NameBeside(target);
    CheckedFile file(name, GENERIC_WRITE, CREATE_NEW);
    if (file.Error() != 0)
        return file.Error();
    RemovedFile written(name, file);
    produce([&file](std::string_view bytes) { return file.Write(bytes); });
    file.Sync();
    if (!file.Close())
        return file.Error();
    const DWORD error = MoveOver(name, target);
    if (error == 0)
        written.Keep();
    return static_cast<int>(error);
}

} // namespace

std::optional<FileError> ReplaceFile(const QString &path, const ByteProducer &produce) {
    const auto found = FindSaveTarget(path);
    if (const auto *failure = std::get_if<FileError>(&found))
        return *failure;
    const auto &target = std::get<SaveTarget>(found);
    if (target.HasOtherNames)
        return WriteInPlace(target, produce);
    const int error = WriteBeside(target, produce);
    return error == 0 ? std::nullopt : std::optional(WriteFailure(error));
}

} // namespace Quillbox
