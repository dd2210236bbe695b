// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SaveInPlace.h"

#include <QDir>
#include <QFileInfo>

namespace Quillbox {

namespace {

constexpr std::size_t LongestName = 255;
constexpr int MostCopies = 100;

/// "juego.prg.antes-de-guardar": it says what it is to a person who finds it after a power cut.
std::filesystem::path CopyName(const SaveTarget &target, int attempt) {
    std::string ending = ".antes-de-guardar";
    if (attempt > 0)
        ending += '-' + std::to_string(attempt + 1);
    std::filesystem::path name =
        target.Name.filename().native().substr(0, LongestName - ending.size());
    return target.Name.parent_path() / (name += ending);
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
int WriteCopy(const SaveTarget &target, const std::filesystem::path &name,
              const FileSystem &system) {
    const auto copy = system.Create(name, Readers::OwnerAlone);
    if (copy->Error() != 0)
        return copy->Error();
    RemovedFile incomplete(system, *copy, name);
    const auto original = system.Open(target.Name, FileAccess::Reading);
    CopyBytes(*original, *copy);
    original->Close();
    copy->MakeLike(target.Name);
    copy->Sync();
    copy->Close();
    if (const int error = FirstError(*original, *copy))
        return error;
    if (const int error = system.SyncFolderOf(name))
        return error;
    incomplete.Keep();
    return 0;
}

/// The name of a complete copy beside the file, or the error number that prevented it.
std::variant<std::filesystem::path, int> MakeCopy(const SaveTarget &target,
                                                  const FileSystem &system) {
    int error = 0;
    for (int attempt = 0; attempt < MostCopies; ++attempt) {
        const std::filesystem::path name = CopyName(target, attempt);
        error = WriteCopy(target, name, system);
        if (error == 0)
            return name;
        if (ProblemOf(error) != FileProblem::NameTaken)
            break;
    }
    return error;
}

void Finish(CheckedFile &file) {
    file.CutAfterWritten();
    file.Sync();
    file.Close();
}

/// 0 or the system's error number.
int Restore(const SaveTarget &target, const std::filesystem::path &copyName,
            const FileSystem &system) {
    const auto copy = system.Open(copyName, FileAccess::Reading);
    if (copy->Error() != 0)
        return copy->Error();
    const auto file = system.Open(target.Name, FileAccess::Overwriting);
    CopyBytes(*copy, *file);
    if (copy->Error() != 0)
        return copy->Error();
    Finish(*file);
    return file->Error();
}

FileError RestoredOrKept(FileError failure, const SaveTarget &target,
                         const std::filesystem::path &copyName, const FileSystem &system) {
    if (Restore(target, copyName, system) == 0)
        system.Remove(copyName);
    else
        failure.Text += QStringLiteral(" El contenido anterior está en «%1».")
                            .arg(QDir::toNativeSeparators(QFileInfo(copyName).filePath()));
    return failure;
}

} // namespace

std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce,
                                      const FileSystem &system) {
    const auto file = system.Open(target.Name, FileAccess::Overwriting);
    if (file->Error() != 0)
        return WriteFailure(file->Error());
    const auto copied = MakeCopy(target, system);
    if (const int *error = std::get_if<int>(&copied))
        return WriteFailure(*error);
    const auto &copyName = std::get<std::filesystem::path>(copied);
    try {
        produce([&file](std::string_view bytes) { return file->Write(bytes); });
    } catch (...) {
        file->Close();
        RestoredOrKept({}, target, copyName, system);
        throw;
    }
    Finish(*file);
    if (file->Error() != 0)
        return RestoredOrKept(WriteFailure(file->Error()), target, copyName, system);
    // The save is complete, so a copy that cannot be removed is no failure of the save.
    system.Remove(copyName);
    return std::nullopt;
}

} // namespace Quillbox
