// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileErrors.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace Quillbox {

/// Takes the next bytes of a file; false when they could not be written, which ends the producing.
using ByteSink = std::function<bool(std::string_view)>;
/// Hands the whole content of a file to the sink, piece by piece.
using ByteProducer = std::function<void(const ByteSink &)>;

/// Replaces the content of the file at `path` (already a path of the system) or creates it.
/// Afterwards the name holds either all old or all new bytes, whatever fails: new content is
/// written beside the file, flushed and moved over it, which keeps mode, owner, symbolic links and
/// hard links (QSaveFile tears hard links apart and does not flush the folder). A file or folder
/// that is write-protected is refused. Empty on success.
std::optional<FileError> ReplaceContent(const QString &path, const ByteProducer &produce);
std::optional<FileError> ReplaceContent(const QString &path, const QByteArray &content);

/// Takes the next bytes of a file. `fileSize` is the file's size in bytes as it was before reading
/// began, the same with every piece: room can be made for the whole file at the first one.
using PieceConsumer = std::function<void(std::string_view piece, std::size_t fileSize)>;

/// Hands the content of the file at `path` (already a path of the system) to `consume` in pieces of
/// at most 1 MiB; an empty file has no piece. Empty on success; after an error the pieces that came
/// before it are worthless.
std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume);

/// Sets `content` to all bytes of a small file; it is worthless after an error.
std::optional<FileError> ReadWholeFile(const QString &path, QByteArray &content);

} // namespace Quillbox
