// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Dialogs;
class Files;

/// True when the file can be opened for reading; otherwise warns that it does not exist.
bool FileExists(const QString &path, Files &files, Dialogs &dialogs);

} // namespace Quillbox
