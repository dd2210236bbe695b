// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfaces/FileExists.h"

#include "surfaces/Dialogs.h"
#include "surfaces/Files.h"

namespace Quillbox {

bool FileExists(const QString &path, Files &files, Dialogs &dialogs) {
    if (files.CanRead(path))
        return true;
    dialogs.ShowMessage({QStringLiteral("El archivo ") + path + QStringLiteral(" no existe."),
                         QStringLiteral("Error"), MessageIcon::Exclamation, MessageButtons::Ok});
    return false;
}

} // namespace Quillbox
