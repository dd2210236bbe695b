// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

#include <QHash>

#include <algorithm>

namespace Quillbox {
namespace {

/// How often each word stands in a theme.
QHash<QString, int> CountWords(const std::vector<Theme> &themes) {
    QHash<QString, int> counts;
    for (const Theme &theme : themes)
        for (const QString &word : theme.Words)
            ++counts[word];
    return counts;
}

QStringList GapsOfWords(const Reference &reference) {
    QStringList gaps;
    QHash<QString, int> counts = CountWords(reference.Themes);
    for (const ReferenceWord &word : reference.Words) {
        const int count = counts.take(word.Name);
        if (count == 0)
            gaps += QStringLiteral("Themes.txt: the word %1 has no theme.").arg(word.Name);
        if (count > 1)
            gaps += QStringLiteral("Themes.txt: the word %1 stands %2 times.")
                        .arg(word.Name)
                        .arg(count);
    }
    QStringList strangers = counts.keys();
    strangers.sort();
    for (const QString &word : strangers)
        gaps += QStringLiteral("Themes.txt: %1 is no word of Keywords.txt.").arg(word);
    return gaps;
}

QStringList GapsOfThemes(const Reference &reference) {
    QStringList gaps;
    for (const Theme &theme : reference.Themes)
        if (theme.Title.isEmpty() || theme.Introduction.isEmpty() || theme.Group.isEmpty() ||
            theme.Words.isEmpty())
            gaps += QStringLiteral("Themes.txt: the theme %1 lacks its group, title, introduction "
                                   "or words.")
                        .arg(theme.Key);
    return gaps;
}

QStringList GapsOfExamples(const Reference &reference) {
    QStringList gaps;
    for (const ExampleProgram &example : reference.Examples)
        for (const QString &key : example.Themes)
            if (std::ranges::none_of(reference.Themes,
                                     [&](const Theme &theme) { return IsCalled(theme, key); }))
                gaps += QStringLiteral("%1: there is no theme \"%2\" in Themes.txt.")
                            .arg(example.File, key);
    return gaps;
}

} // namespace

QStringList FindGaps(const Reference &reference) {
    return GapsOfWords(reference) + GapsOfThemes(reference) + GapsOfExamples(reference);
}

} // namespace Quillbox
