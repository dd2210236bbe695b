// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace Quillbox {

/// The items of a text in free format: an item ends at a comma or a line end, leading blanks are
/// skipped, and an item in double quotes may hold commas and loses its quotes.
QStringList FreeFormatItems(const QString &text);

/// The lines of a text, whole. A line end at the very end begins no further line.
QStringList WholeLines(const QString &text);

} // namespace Quillbox
