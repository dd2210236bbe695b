// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"
#include "platform/linux/CheckedFile.h"

#include <QFile>

#include <cerrno>
#include <memory>

namespace Quillbox {

namespace {

constexpr std::size_t PieceSize = 1 << 20;

/// 0 when the file's content can be read.
int ErrorOfKind(mode_t mode) {
    if (S_ISDIR(mode))
        return EISDIR;
    return S_ISREG(mode) ? 0 : ENXIO;
}

} // namespace

std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume,
                                       const SystemCalls &calls) {
    if (path.contains(QChar(u'\0')))
        return ReadFailure(EINVAL);
    // Without O_NONBLOCK, opening a named pipe waits until somebody writes to it.
    CheckedFile file(calls, QFile::encodeName(path), O_RDONLY | O_NONBLOCK);
    const struct stat status = file.Status();
    if (file.Error() != 0)
        return ReadFailure(file.Error());
    if (const int error = ErrorOfKind(status.st_mode))
        return ReadFailure(error);

    const auto fileSize = static_cast<std::size_t>(status.st_size);
    const auto buffer = std::make_unique_for_overwrite<char[]>(PieceSize);
    for (;;) {
        const std::string_view piece = file.Read(buffer.get(), PieceSize);
        if (piece.empty())
            break;
        consume(piece, fileSize);
    }
    return file.Error() == 0 ? std::nullopt : std::optional(ReadFailure(file.Error()));
}

std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume) {
    return ReadFileBytes(path, consume, SystemCalls{});
}

} // namespace Quillbox
