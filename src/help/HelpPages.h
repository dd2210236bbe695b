// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace Quillbox {

/// A page or style sheet as text. Its own declaration counts unless its bytes contradict it: a byte
/// order mark, the character set of a META element, the encoding of an XML declaration. Without
/// one, what is valid UTF-8 is UTF-8, anything else Windows-1252.
QString DecodePage(const QByteArray &bytes);

/// A style sheet whose letters are measured in points instead of pixels, at 96 pixels to the inch:
/// the viewer cannot zoom letters in pixels.
QString WithSizesInPoints(const QString &styles);

/// The HTML that shows a file, by the ending of its name: pages as they are, pictures as a page
/// with nothing else, everything else as plain text. A page of frames becomes a page with a link to
/// each of its parts.
QString PageOf(const QString &path, const QByteArray &bytes);

/// The HTML that says that there is no such page; an empty path means that none was chosen.
QString MissingPage(const QString &path);

} // namespace Quillbox
