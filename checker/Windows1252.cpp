// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/Windows1252.h"

#include "base/Utf8.h"
#include "base/Windows1252.h"

#include <algorithm>
#include <optional>

namespace Quillbox {

namespace {

// The control characters between 80 and 9F are no characters of a text.
std::optional<char> FindByteOf(char32_t character) {
    if (character >= 0xA0 && character <= 0xFF)
        return static_cast<char>(character);
    const auto special = std::ranges::find(Windows1252From80To9F, character);
    if (character < 0xA0 || special == Windows1252From80To9F.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (special - Windows1252From80To9F.begin()));
}

} // namespace

std::string ToWindows1252(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const DecodedCharacter character = DecodeUtf8(text);
        const std::optional<char> byte = FindByteOf(character.Value);
        bytes += byte.value_or(text.front());
        text.remove_prefix(byte ? character.Size : 1);
    }
    return bytes;
}

} // namespace Quillbox
