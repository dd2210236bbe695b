// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/linux/CheckedFile.h"
#include "platform/linux/SaveTarget.h"

#include <QFile>

#include <cerrno>
#include <memory>
#include <variant>

namespace Quillbox {

namespace {

constexpr qsizetype LongestName = 255;
constexpr int MostCopies = 100;

/// "juego.prg.antes-de-guardar": it says what it is to a person who finds it after a power cut.
QByteArray CopyName(const SaveTarget &target, int attempt) {
    QByteArray ending = ".antes-de-guardar";
    if (attempt > 0)
        ending += '-' + QByteArray::number(attempt + 1);
    const QByteArray name = NameWithoutFolder(target.Name).left(LongestName - ending.size());
    return target.Folder + '/' + name + ending;
}

void CopyBytes(CheckedFile &from, CheckedFile &to) {
    constexpr std::size_t bufferSize = 1 << 20;
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    for (;;) {
        const std::string_view piece = from.Read(buffer.get(), bufferSize);
        if (piece.empty() || !to.Write(piece))
            break;
    }
}

int FirstError(const CheckedFile &one, const CheckedFile &other) {
    return one.Error() != 0 ? one.Error() : other.Error();
}

/// 0 or the system's error number, in which case no copy is left.
int WriteCopy(const SaveTarget &target, const QByteArray &name, const SystemCalls &calls) {
    CheckedFile copy(calls, name, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (copy.Error() != 0)
        return copy.Error();
    RemovedFile incomplete(calls, name);
    CheckedFile original(calls, target.Name, O_RDONLY);
    CopyBytes(original, copy);
    original.Close();
    copy.SetMode(target.File->st_mode & 0777);
    copy.Sync();
    copy.Close();
    if (const int error = FirstError(original, copy))
        return error;
    if (const int error = SyncFolder(target.Folder, calls))
        return error;
    incomplete.Keep();
    return 0;
}

/// The name of a complete copy beside the file, or the error number that prevented it.
std::variant<QByteArray, int> MakeCopy(const SaveTarget &target, const SystemCalls &calls) {
    for (int attempt = 0; attempt < MostCopies; ++attempt) {
        const QByteArray name = CopyName(target, attempt);
        const int error = WriteCopy(target, name, calls);
        if (error == 0)
            return name;
        if (error != EEXIST)
            return error;
    }
    return EEXIST;
}

void Finish(CheckedFile &file) {
    file.CutAfterWritten();
    file.Sync();
    file.Close();
}

/// 0 or the system's error number.
int Restore(const SaveTarget &target, const QByteArray &copyName, const SystemCalls &calls) {
    CheckedFile copy(calls, copyName, O_RDONLY);
    if (copy.Error() != 0)
        return copy.Error();
    CheckedFile file(calls, target.Name, O_WRONLY);
    CopyBytes(copy, file);
    if (copy.Error() != 0)
        return copy.Error();
    Finish(file);
    return file.Error();
}

FileError RestoredOrKept(FileError failure, const SaveTarget &target, const QByteArray &copyName,
                         const SystemCalls &calls) {
    if (Restore(target, copyName, calls) == 0)
        calls.Unlink(copyName.constData());
    else
        failure.Text +=
            QStringLiteral(" El contenido anterior está en «%1».").arg(QFile::decodeName(copyName));
    return failure;
}

} // namespace

std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce,
                                      const SystemCalls &calls) {
    CheckedFile file(calls, target.Name, O_WRONLY);
    if (file.Error() != 0)
        return WriteFailure(file.Error());
    const auto copied = MakeCopy(target, calls);
    if (const int *error = std::get_if<int>(&copied))
        return WriteFailure(*error);
    const auto &copyName = std::get<QByteArray>(copied);
    try {
        produce([&file](std::string_view bytes) { return file.Write(bytes); });
    } catch (...) {
        RestoredOrKept({}, target, copyName, calls);
        throw;
    }
    Finish(file);
    if (file.Error() != 0)
        return RestoredOrKept(WriteFailure(file.Error()), target, copyName, calls);
    // The save is complete, so a copy that cannot be removed is no failure of the save.
    calls.Unlink(copyName.constData());
    return std::nullopt;
}

} // namespace Quillbox
