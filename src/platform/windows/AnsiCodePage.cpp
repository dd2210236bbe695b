// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AnsiText.h"
#include "base/Windows1252.h"
#include "platform/windows/WindowsApi.h"

namespace Quillbox {

namespace {

/// The system's code page; Windows-1252 where one byte is not always one character.
std::array<char16_t, 256> MakeSystemCodePage() {
    CPINFO information{};
    if (::GetCPInfo(CP_ACP, &information) == 0 || information.MaxCharSize != 1)
        return MakeWindows1252();
    std::array<char16_t, 256> codePage{};
    for (std::size_t byte = 0; byte < codePage.size(); ++byte) {
        const char text = static_cast<char>(byte);
        wchar_t character = 0;
        const int count =
            ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &text, 1, &character, 1);
        codePage[byte] =
            count == 1 ? static_cast<char16_t>(character) : static_cast<char16_t>(byte);
    }
    return codePage;
}

} // namespace

const std::array<char16_t, 256> &AnsiCodePage() {
    static const std::array<char16_t, 256> codePage = MakeSystemCodePage();
    return codePage;
}

} // namespace Quillbox
