// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/TextItems.h"

#include "base/Characters.h"

namespace Quillbox {
namespace {

/// Moves `position` behind the line end that starts there; CR LF is one line end.
void SkipLineEnd(const QString &text, qsizetype &position) {
    const bool carriageReturn = text[position] == u'\r';
    ++position;
    if (carriageReturn && position < text.size() && text[position] == u'\n')
        ++position;
}

/// Moves `position` behind the comma or line end that closes an item.
void SkipItemEnd(const QString &text, qsizetype &position) {
    while (position < text.size() && text[position] != u',' && !IsLineEnd(text[position]))
        ++position;
    if (position == text.size())
        return;
    if (text[position] == u',')
        ++position;
    else
        SkipLineEnd(text, position);
}

QString TakeQuotedItem(const QString &text, qsizetype &position) {
    const qsizetype start = position + 1;
    qsizetype end = text.indexOf(u'"', start);
    if (end < 0)
        end = text.size();
    position = qMin(end + 1, text.size());
    return text.mid(start, end - start);
}

QString TakePlainItem(const QString &text, qsizetype &position) {
    const qsizetype start = position;
    while (position < text.size() && text[position] != u',' && !IsLineEnd(text[position]))
        ++position;
    return text.mid(start, position - start);
}

} // namespace

QStringList FreeFormatItems(const QString &text) {
    QStringList items;
    for (qsizetype position = 0; position < text.size();) {
        while (position < text.size() && (text[position] == u' ' || text[position] == u'\t'))
            ++position;
        const bool quoted = position < text.size() && text[position] == u'"';
        items.append(quoted ? TakeQuotedItem(text, position) : TakePlainItem(text, position));
        SkipItemEnd(text, position);
    }
    return items;
}

QStringList WholeLines(const QString &text) {
    QStringList lines;
    for (qsizetype position = 0; position < text.size();) {
        const qsizetype start = position;
        while (position < text.size() && !IsLineEnd(text[position]))
            ++position;
        lines.append(text.mid(start, position - start));
        if (position < text.size())
            SkipLineEnd(text, position);
    }
    return lines;
}

} // namespace Quillbox
