// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

namespace Quillbox {
namespace {

const QString BetweenParts = QStringLiteral(" - ");

QStringList LinesOf(const QString &text) {
    QStringList lines = text.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (QString &line : lines)
        line = line.trimmed();
    return lines;
}

ReferenceWord WordOf(const QString &name, const QString &help) {
    const qsizetype cut = help.indexOf(BetweenParts);
    if (cut < 0)
        return {name, help, {}};
    return {name, help.left(cut).trimmed(), help.mid(cut + BetweenParts.size()).trimmed()};
}

} // namespace

std::vector<ReferenceWord> PairWords(const QString &keywords, const QString &quickHelp,
                                     QStringList &problems) {
    const QStringList names = LinesOf(keywords);
    const QStringList helpLines = LinesOf(quickHelp);
    if (names.size() != helpLines.size())
        problems += QStringLiteral("Keywords.txt has %1 lines and QuickHelp.txt %2; line by line, "
                                   "they must belong together.")
                        .arg(names.size())
                        .arg(helpLines.size());
    std::vector<ReferenceWord> words;
    for (qsizetype i = 0; i < std::min(names.size(), helpLines.size()); ++i) {
        if (!helpLines[i].contains(names[i], Qt::CaseInsensitive))
            problems += QStringLiteral("QuickHelp.txt, line %1: the help line is about something "
                                       "other than \"%2\", the word of this line.")
                            .arg(i + 1)
                            .arg(names[i]);
        words.push_back(WordOf(names[i], helpLines[i]));
    }
    return words;
}

} // namespace Quillbox
