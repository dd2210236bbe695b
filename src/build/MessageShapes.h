// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace Quillbox {

/// What a compiler's error line says, cut out without any trimming.
struct ErrorLocation {
    QString FileText; ///< the file's name as the compiler prints it
    QString LineText; ///< begins with the 1-based line number; may run on into the message
};

/// The first line of `log` that a compiler reports an error with.
std::optional<QString> FindErrorLine(const QString &log);

/// Cuts an error line by its shape. A line that begins like a shape without having its parts is
/// run-time error 5.
ErrorLocation LocateError(const QString &errorLine);

} // namespace Quillbox
