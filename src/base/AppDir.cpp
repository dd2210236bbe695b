// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AppDir.h"

#include "base/Paths.h"

namespace Quillbox {

QString AppDirOf(const QString &programFolder) { return programFolder + PathSeparator; }

QString HelpPagePath(const QString &appDir, const QString &page) {
    return appDir + QStringLiteral("Ayuda") + PathSeparator + page;
}

} // namespace Quillbox
