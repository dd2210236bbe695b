// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AppDir.h"

#include "base/Paths.h"

#include <QDir>

namespace Quillbox {

QString AppDirOf(const QString &programFolder) {
    return QDir::toNativeSeparators(programFolder) + PathSeparator;
}

QString HelpPagePath(const QString &appDir, const QString &page) {
    return appDir + QStringLiteral("Ayuda") + PathSeparator + page;
}

} // namespace Quillbox
