// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace Quillbox {

// Writes the bytes as they are, whatever the system does with line ends of its own accord.
void WriteToStandardOutput(std::string_view bytes);

} // namespace Quillbox
