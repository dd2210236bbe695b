// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

namespace Quillbox {
namespace {

/// What follows `start` when the text begins with it in any letter case, else the text.
QString Without(const QString &start, const QString &text) {
    return text.startsWith(start, Qt::CaseInsensitive) ? text.mid(start.size()).trimmed() : text;
}

/// Empty when the line is no comment.
QString CommentOf(const QString &line) {
    const QString trimmed = line.trimmed();
    return trimmed.startsWith(u';') ? trimmed.mid(1).trimmed() : QString();
}

QStringList KeysOf(const QString &value) {
    QStringList keys = value.split(u',', Qt::SkipEmptyParts);
    for (QString &key : keys)
        key = key.trimmed();
    return keys;
}

} // namespace

std::optional<ExampleProgram> ReadExample(const QString &file, const QString &source,
                                          QStringList &problems) {
    const QString themeMark = QStringLiteral("Tema:");
    const QString title =
        Without(QStringLiteral("Título:"), CommentOf(source.section(u'\n', 0, 0)));
    const QString theme = CommentOf(source.section(u'\n', 1, 1));
    const QString sentence = CommentOf(source.section(u'\n', 2, 2));
    if (title.isEmpty() || sentence.isEmpty() ||
        !theme.startsWith(themeMark, Qt::CaseInsensitive)) {
        problems += QStringLiteral("%1: the first three lines must be \"; title\", \"; Tema: key\" "
                                   "and \"; sentence\".")
                        .arg(file);
        return std::nullopt;
    }
    return ExampleProgram{file, title, KeysOf(Without(themeMark, theme)), sentence};
}

} // namespace Quillbox
