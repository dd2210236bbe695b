// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// The separator of this system's paths, "\" or "/". Each system defines what is declared here.
extern const QChar PathSeparator;

/// What ends a line in a new text.
extern const char *const LineEnd;

/// The path that the system opens for a path as it was stored or typed. Where paths have another
/// form than those of Windows, one that does not exist as it stands is also tried in that form: "\"
/// as separator, drive letters of Wine, another letter case. Where nothing matches, the result
/// keeps the unmatched rest, so that a new file can be created there. What is stored or shown stays
/// as it was written.
QString SystemPath(const QString &path);

} // namespace Quillbox
