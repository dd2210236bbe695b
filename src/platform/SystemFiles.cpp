// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemFiles.h"

#include "base/Paths.h"
#include "platform/SaveFile.h"

#include <QFile>
#include <QFileInfo>

namespace Quillbox {

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
    return !ReplaceContent(SystemPath(path), content);
}

} // namespace Quillbox
