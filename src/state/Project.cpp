// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Project.h"

#include "base/Version.h"

namespace Quillbox {

QString ProjectCaption(const QString &title) {
    return QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto: ") + title + u'>';
}

} // namespace Quillbox
