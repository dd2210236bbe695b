// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/LanguageDefinition.h"

#include <QString>

#include <string>

namespace Quillbox::Bench {

/// A program as people write them: functions, types, loops, comments and texts in Spanish, about 30
/// bytes a line, lines ended by CR LF, Windows-1252, at least `size` bytes. Always the same.
std::string SourceText(std::size_t size);

/// One line of such a program without any line end.
std::string SourceLine(std::size_t size);

/// The program's language with the delivered keywords.
LanguageDefinition SourceLanguage();

/// A file that lasts as long as the process.
QString WriteFile(const QString &name, const std::string &bytes);

} // namespace Quillbox::Bench
