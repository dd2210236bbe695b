// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/ProgramSearch.h"

#include <optional>

namespace Quillbox {

/// The program of this desktop that does what the Windows program of a command line does, with its
/// arguments. Empty when the command line names no such program, or nothing in its place is
/// installed.
std::optional<Execution> FindDesktopProgram(const QString &commandLine);

/// What a person reads when nothing is installed in the place of the Windows program. Empty for
/// every other command line.
std::optional<QString> MissingDesktopProgram(const QString &commandLine);

} // namespace Quillbox
