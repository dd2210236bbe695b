// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// The separator of this system's paths: "\" on Windows, "/" on Linux.
extern const QChar PathSeparator;

/// What ends a line in a new text.
extern const char *const LineEnd;

/// The path that the system opens for a path as it was stored or typed. On Linux a path that does
/// not exist as it stands is also tried in its Windows forms: "\" as separator, drive letters of
/// Wine, another letter case. Where nothing matches, the result keeps the unmatched rest, so that a
/// new file can be created there. What is stored or shown stays as it was written.
QString SystemPath(const QString &path);

} // namespace Quillbox
