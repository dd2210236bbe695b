// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/FileNames.h"

#include "base/Paths.h"
#include "base/RuntimeError.h"

namespace Quillbox {

FileNameParts SplitFileName(const QString &path) {
    qsizetype separator = path.lastIndexOf(PathSeparator);
    if (separator < 0)
        separator = path.lastIndexOf(u'\\');
    return {path.left(separator + 1), path.mid(separator + 1)};
}

QString WithoutLast(const QString &text, int count) {
    if (text.size() < count)
        throw InvalidArgument();
    return text.chopped(count);
}

} // namespace Quillbox
