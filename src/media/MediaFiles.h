// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Quillbox {

/// The names that the file list shows. "*.x3m" stands here as users know it.
inline const QString MediaPatterns =
    QStringLiteral("*.x;*.3ds;*.md2;*.bmp;*.jpg;*.png;*.pcx;*.tga;*.iff;*.wav;*.mp3;*.mid;*.mod;"
                   "*.x3m;*.xm;*.it");

enum class MediaKind { Model, Picture, Sound };

/// Those of `names` that match one of the patterns, which are separated by ";"; letter case does
/// not count.
QStringList NamesMatching(const QStringList &names, const QString &patterns);

/// By the ending of the name.
MediaKind MediaKindOf(const QString &name);

/// In the order of a Spanish dictionary: letter case does not count, "ñ" follows "n" and "nave2"
/// comes before "nave10".
QStringList SortedForPeople(const QStringList &names);

} // namespace Quillbox
