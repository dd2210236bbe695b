// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProfileFiles.h"

#include "base/AnsiText.h"
#include "base/Paths.h"
#include "base/ProfileText.h"
#include "platform/SaveFile.h"

#include <algorithm>

namespace Quillbox {

namespace {

QString WithoutBlanksAtEnd(const QString &text) {
    qsizetype size = text.size();
    while (size > 0 && (text[size - 1] == u' ' || text[size - 1] == u'\t'))
        --size;
    return text.left(size);
}

/// What fits into a buffer of `capacity` characters with a NUL behind it.
QString FittedInto(int capacity, const QString &text) {
    const QString fitted = text.left(std::max(capacity - 1, 0));
    const qsizetype nul = fitted.indexOf(QChar(u'\0'));
    return nul < 0 ? fitted : fitted.left(nul);
}

} // namespace

QString ProfileFiles::ReadString(const QString &section, const QString &key,
                                 const QString &defaultValue, int capacity, const QString &file) {
    QByteArray content;
    const bool readable = !ReadWholeFile(SystemPath(file), content);
    const auto value =
        readable ? FindProfileValue(content, ToAnsi(section), ToAnsi(key)) : std::nullopt;
    return FittedInto(capacity, value ? FromAnsi(*value) : WithoutBlanksAtEnd(defaultValue));
}

bool ProfileFiles::WriteStrings(const QString &section, const std::vector<KeyValue> &values,
                                const QString &file) {
    const QString path = SystemPath(file);
    QByteArray content;
    const auto error = ReadWholeFile(path, content);
    if (error && error->Problem != FileProblem::Missing)
        return false;
    for (const auto &[key, value] : values)
        content = WithProfileValue(content, ToAnsi(section), ToAnsi(key), ToAnsi(value));
    return !ReplaceContent(path, content);
}

} // namespace Quillbox
