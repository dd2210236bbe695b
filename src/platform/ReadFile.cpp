// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileSystem.h"

namespace Quillbox {

std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume,
                                       const FileSystem &system) {
    constexpr std::size_t pieceSize = 1 << 20;
    const auto file = system.OpenContent(path);
    const std::size_t fileSize = file->Size();
    const auto buffer = std::make_unique_for_overwrite<char[]>(pieceSize);
    for (;;) {
        const std::string_view piece = file->Read(buffer.get(), pieceSize);
        if (piece.empty())
            break;
        consume(piece, fileSize);
    }
    return file->Error() == 0 ? std::nullopt : std::optional(ReadFailure(file->Error()));
}

std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume) {
    return ReadFileBytes(path, consume, *MakeFileSystem());
}

std::optional<FileError> ReadWholeFile(const QString &path, QByteArray &content) {
    content.clear();
    return ReadFileBytes(path, [&content](std::string_view piece, std::size_t fileSize) {
        if (content.isEmpty())
            content.reserve(static_cast<qsizetype>(fileSize));
        content.append(piece.data(), static_cast<qsizetype>(piece.size()));
    });
}

} // namespace Quillbox
