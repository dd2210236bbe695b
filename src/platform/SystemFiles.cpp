// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemFiles.h"

#include "base/Paths.h"
#include "platform/SaveFile.h"

#include <QFile>
#include <QFileInfo>

namespace Quillbox {

std::optional<FileError> ReadWholeFile(const QString &path, QByteArray &content) {
    content.clear();
    return ReadFileBytes(path, [&content](std::string_view piece, std::size_t fileSize) {
        if (content.isEmpty())
            content.reserve(static_cast<qsizetype>(fileSize));
        content.append(piece.data(), static_cast<qsizetype>(piece.size()));
    });
}

bool SystemFiles::CanRead(const QString &path) {
    const QString systemPath = SystemPath(path);
    // Opening anything but a file may wait for ever, as a named pipe does.
    return QFileInfo(systemPath).isFile() && QFile(systemPath).open(QIODevice::ReadOnly);
}

std::optional<QByteArray> SystemFiles::Read(const QString &path) {
    QByteArray content;
    if (ReadWholeFile(SystemPath(path), content))
        return std::nullopt;
    return content;
}

bool SystemFiles::Write(const QString &path, const QByteArray &content) {
    const std::string_view bytes(content.constData(), static_cast<std::size_t>(content.size()));
    return !ReplaceFile(SystemPath(path), [bytes](const ByteSink &sink) { sink(bytes); });
}

} // namespace Quillbox
