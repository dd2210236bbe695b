// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace Quillbox {

/// A link; the text is escaped here, the address is one of our own file names.
QString Link(const QString &address, const QString &text);

/// A page in the look of the help: title, links of `navigation` above and below, `body` between.
QString PageOf(const QString &title, const QStringList &navigation, const QString &body);

/// Lines of code in a box.
QString CodeBox(const QStringList &lines);

} // namespace Quillbox
