// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Quillbox {

/// The finished help: what was written and what was made while building, in the program folder.
QString HelpPath(const QString &name);

/// All pages, also those in folders below.
QStringList HelpPageNames();

/// The bytes of a file. Throws std::runtime_error if it cannot be read.
QByteArray ReadHelpFile(const QString &name);

QString HelpPage(const QString &name);

/// What the first group of pattern matches, once per match.
QStringList AllMatches(const QString &text, const char *pattern);

/// The name of the file that a link on `page` leads to, without its anchor.
QString FileOfLink(const QString &page, const QString &address);

/// Whether there is a file of this name in exactly this letter case, as on a system that tells
/// cases apart.
bool IsHelpFile(const QString &name);

} // namespace Quillbox
