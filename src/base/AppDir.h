// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// The program folder followed by one separator, always added: a program in a drive's root gets a
/// doubled one, which the file system accepts. Every data file is `AppDir` and a relative name.
QString AppDirOf(const QString &programFolder);

/// A page of Quillbox's own help, by its file name.
QString HelpPagePath(const QString &appDir, const QString &page);

} // namespace Quillbox
