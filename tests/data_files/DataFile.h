// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/SourceTree.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringDecoder>
#include <algorithm>
#include <stdexcept>

namespace Quillbox {

inline QString DataPath(const QString &relative) {
    return QString::fromStdString(SourceTree() / "data/") + relative;
}

/// The bytes of a file of the data folder. Throws std::runtime_error if it cannot be read, so that
/// a missing file fails a test instead of passing as an empty one.
inline QByteArray ReadDataFile(const QString &relative) {
    QFile file(DataPath(relative));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + relative.toStdString());
    return file.readAll();
}

/// Whether Windows-1252 gives each of the bytes a character; it has none for five of them.
inline bool IsWindows1252(const QByteArray &bytes) {
    static const QByteArray unassigned("\x81\x8d\x8f\x90\x9d");
    return std::none_of(bytes.begin(), bytes.end(),
                        [](char byte) { return unassigned.contains(byte); });
}

/// Whether bytes holds a multi-byte UTF-8 character, the mark of a file saved in the wrong code.
inline bool LooksLikeUtf8(const QByteArray &bytes) {
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < 128;
    });
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !ascii && !text.isNull() && !decoder.hasError();
}

} // namespace Quillbox
