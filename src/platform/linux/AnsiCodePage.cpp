// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AnsiText.h"
#include "base/Windows1252.h"

namespace Quillbox {

const std::array<char16_t, 256> &AnsiCodePage() {
    static constexpr std::array<char16_t, 256> codePage = MakeWindows1252();
    return codePage;
}

} // namespace Quillbox
