// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"

namespace Quillbox {

const QChar PathSeparator = u'\\';
const char *const LineEnd = "\r\n";

QString SystemPath(const QString &path) { return path; }

} // namespace Quillbox
