// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/windows/CheckedFile.h"

#include <cstdint>
#include <memory>

namespace Quillbox {

namespace {

constexpr DWORD PieceSize = 1 << 20;

} // namespace

std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume) {
    CheckedFile file(NativePath(path), GENERIC_READ, OPEN_EXISTING);
    if (file.Error() == 0 && !file.IsOnDisk())
        return ReadFailure(ERROR_BAD_DEV_TYPE);
    const BY_HANDLE_FILE_INFORMATION information = file.Information();
    if (file.Error() != 0)
        return ReadFailure(file.Error());
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return ReadFailure(ERROR_DIRECTORY);

    const auto fileSize = static_cast<std::size_t>(
        (std::uint64_t{information.nFileSizeHigh} << 32) | information.nFileSizeLow);
    const auto buffer = std::make_unique_for_overwrite<char[]>(PieceSize);
    for (;;) {
        const std::string_view piece = file.Read(buffer.get(), PieceSize);
        if (piece.empty())
            break;
        consume(piece, fileSize);
    }
    return file.Error() == 0 ? std::nullopt : std::optional(ReadFailure(file.Error()));
}

} // namespace Quillbox
