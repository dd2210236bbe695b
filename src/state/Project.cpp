// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Project.h"

#include "base/Version.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

QString ProjectCaption(const QString &title) {
    return QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto: ") + title + u'>';
}

void EnableProjectMenus(MainWindow &mainWindow, bool enabled) {
    for (const QString &name : {QStringLiteral("mnuArchivo_GuardarProyecto"),
                                QStringLiteral("mnuArchivo_GuardarProyectoComo"),
                                QStringLiteral("mnuArchivo_CerrarProyecto")})
        mainWindow.EnableCommand(name, enabled);
}

} // namespace Quillbox
