// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace Quillbox {

// UTF-8 text in the code page of the editor's files. Bytes that are no UTF-8, and characters that
// the code page lacks, stay as they are: a path may hold any bytes.
std::string ToWindows1252(std::string_view text);

} // namespace Quillbox
