// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "platform/SaveFile.h"

namespace Quillbox {

/// Shows the ANSI file at `path` (as stored or typed) as a new text without history, unmodified,
/// with the caret at its start. `setUp` prepares the new text before it is filled. After an error
/// the component shows the text that it had, as it had it.
std::optional<FileError> LoadAnsiFile(const ScintillaText &text, const QString &path,
                                      const std::function<void()> &setUp);

/// Writes the text as ANSI bytes to `path` (as stored or typed).
std::optional<FileError> SaveAnsiFile(const ScintillaText &text, const QString &path);

/// Writes the text that could not be saved under `path` to a folder of the program's own data. The
/// full name of the copy, nothing when that is not possible either.
std::optional<QString> SaveRescueCopy(const ScintillaText &text, const QString &path);

} // namespace Quillbox
