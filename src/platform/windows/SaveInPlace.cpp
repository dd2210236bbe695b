// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/windows/SaveTarget.h"

#include <memory>

namespace Quillbox {

namespace {

constexpr int MostCopies = 100;

/// It says what it is to a person who finds it after a power cut.
std::wstring CopyName(const SaveTarget &target, int attempt) {
    const std::wstring name = target.Name + L".antes-de-guardar";
    return attempt == 0 ? name : name + L'-' + std::to_wstring(attempt + 1);
}

void CopyBytes(CheckedFile &from, CheckedFile &to) {
    constexpr DWORD bufferSize = 1 << 20;
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    for (;;) {
        const std::string_view piece = from.Read(buffer.get(), bufferSize);
        if (piece.empty() || !to.Write(piece))
            break;
    }
}

void Finish(CheckedFile &file) {
    file.CutAfterWritten();
    file.Sync();
    file.Close();
}

/// Makes `to` a complete copy of `from`. 0 or the system's error number.
int Copy(const std::wstring &from, const std::wstring &to, DWORD creation) {
    CheckedFile source(from, GENERIC_READ, OPEN_EXISTING);
    if (source.Error() != 0)
        return source.Error();
    CheckedFile copy(to, GENERIC_WRITE, creation);
    CopyBytes(source, copy);
    if (source.Error() != 0)
        return source.Error();
    Finish(copy);
    return copy.Error();
}

/// The name of a complete copy beside the file, or the error number that prevented it.
std::variant<std::wstring, int> MakeCopy(const SaveTarget &target) {
    for (int attempt = 0; attempt < MostCopies; ++attempt) {
        const std::wstring name = CopyName(target, attempt);
        const int error = Copy(target.Name, name, CREATE_NEW);
        if (error == 0)
            return name;
        if (error != ERROR_FILE_EXISTS) {
            ::DeleteFileW(name.c_str());
            return error;
        }
    }
    return static_cast<int>(ERROR_FILE_EXISTS);
}

FileError RestoredOrKept(FileError failure, const SaveTarget &target,
                         const std::wstring &copyName) {
    if (Copy(copyName, target.Name, OPEN_EXISTING) == 0)
        ::DeleteFileW(copyName.c_str());
    else
        failure.Text += QStringLiteral(" El contenido anterior está en «%1».")
                            .arg(QString::fromStdWString(copyName));
    return failure;
}

/// 0 when the file can be opened for writing, else the system's error number.
int ErrorOfOpening(const SaveTarget &target) {
    return CheckedFile(target.Name, GENERIC_WRITE, OPEN_EXISTING).Error();
}

/// 0 or the system's error number.
int Overwrite(const SaveTarget &target, const ByteProducer &produce) {
    CheckedFile file(target.Name, GENERIC_WRITE, OPEN_EXISTING);
    produce([&file](std::string_view bytes) { return file.Write(bytes); });
    Finish(file);
    return file.Error();
}

} // namespace

std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce) {
    if (const int error = ErrorOfOpening(target))
        return WriteFailure(error);
    const auto copied = MakeCopy(target);
    if (const int *error = std::get_if<int>(&copied))
        return WriteFailure(*error);
    const auto &copyName = std::get<std::wstring>(copied);
    int error = 0;
    try {
        error = Overwrite(target, produce);
    } catch (...) {
        RestoredOrKept({}, target, copyName);
        throw;
    }
    if (error != 0)
        return RestoredOrKept(WriteFailure(error), target, copyName);
    // The save is complete, so a copy that cannot be removed is no failure of the save.
    ::DeleteFileW(copyName.c_str());
    return std::nullopt;
}

} // namespace Quillbox
