// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

struct FileNameParts {
    QString Directory; ///< with its separator at the end, empty without a folder
    QString FileName;
};

/// Splits at the last separator. A path in Windows form splits at its last "\".
FileNameParts SplitFileName(const QString &path);

/// `text` without its last `count` characters; run-time error 5 when it is shorter.
QString WithoutLast(const QString &text, int count);

} // namespace Quillbox
