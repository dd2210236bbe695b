// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checker/StructureMistake.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Quillbox {

std::string ReadBytes(const std::filesystem::path &path);
void WriteBytes(const std::filesystem::path &path, std::string_view bytes);

// The example programs, in the order of their numbers.
std::vector<std::filesystem::path> ExamplePrograms();

// "3: message", or "ninguno" without a mistake.
std::string Shown(const std::optional<StructureMistake> &mistake);

} // namespace Quillbox
