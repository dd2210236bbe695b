// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaFiles.h"

#include <QCollator>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <vector>

namespace Quillbox {
namespace {

QRegularExpression ExpressionOf(const QString &patterns) {
    QStringList alternatives;
    const QStringList each = patterns.split(u';', Qt::SkipEmptyParts);
    for (const QString &pattern : each)
        alternatives.append(QRegularExpression::wildcardToRegularExpression(pattern));
    return QRegularExpression(alternatives.join(u'|'),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

/// A name beside its sort key, so that each name is looked up in the rules of order only once.
struct KeyedName {
    QCollatorSortKey Key;
    QString Name;
};

} // namespace

QStringList NamesMatching(const QStringList &names, const QString &patterns) {
    const QRegularExpression expression = ExpressionOf(patterns);
    expression.optimize();
    QStringList matching;
    std::copy_if(names.begin(), names.end(), std::back_inserter(matching),
                 [&](const QString &name) { return expression.match(name).hasMatch(); });
    return matching;
}

MediaKind MediaKindOf(const QString &name) {
    static const QStringList models = {QStringLiteral("x"), QStringLiteral("3ds"),
                                       QStringLiteral("md2")};
    static const QStringList pictures = {QStringLiteral("bmp"), QStringLiteral("jpg"),
                                         QStringLiteral("png"), QStringLiteral("pcx"),
                                         QStringLiteral("tga"), QStringLiteral("iff")};
    const QString ending = name.section(u'.', -1).toLower();
    if (models.contains(ending))
        return MediaKind::Model;
    return pictures.contains(ending) ? MediaKind::Picture : MediaKind::Sound;
}

QStringList SortedForPeople(const QStringList &names) {
    QCollator order(QLocale(QLocale::Spanish, QLocale::Spain));
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    std::vector<KeyedName> keyed;
    keyed.reserve(static_cast<std::size_t>(names.size()));
    for (const QString &name : names)
        keyed.push_back({order.sortKey(name), name});
    std::sort(keyed.begin(), keyed.end(), [](const KeyedName &left, const KeyedName &right) {
        const int difference = left.Key.compare(right.Key);
        return difference != 0 ? difference < 0 : left.Name < right.Name;
    });
    QStringList sorted;
    sorted.reserve(names.size());
    for (KeyedName &name : keyed)
        sorted.append(std::move(name.Name));
    return sorted;
}

} // namespace Quillbox
