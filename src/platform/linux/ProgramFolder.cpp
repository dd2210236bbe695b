// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramFolder.h"

#include <QFile>
#include <QFileInfo>

namespace Quillbox {

QString ProgramFolder() {
    return QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
}

} // namespace Quillbox
