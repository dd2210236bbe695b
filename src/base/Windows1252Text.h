// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Windows1252.h"

#include <QByteArray>
#include <QString>

namespace Quillbox {

/// Windows-1252 on every system, whatever its own code page is.
inline QString FromWindows1252(const QByteArray &bytes) {
    static constexpr auto CodePage = MakeWindows1252();
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i)
        text[i] = QChar(CodePage[static_cast<unsigned char>(bytes[i])]);
    return text;
}

} // namespace Quillbox
