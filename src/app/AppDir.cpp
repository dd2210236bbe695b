// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppDir.h"

#include "platform/Paths.h"

namespace Quillbox {

QString AppDirOf(const QString &programFolder) { return programFolder + PathSeparator; }

} // namespace Quillbox
