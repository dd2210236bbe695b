// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace Quillbox {

namespace {

// What the code page holds at 128 to 159; 0 where it holds nothing.
constexpr std::array<char32_t, 32> Specials{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

// The bytes of the character that begins with `lead`. No character of the code page takes four.
std::size_t LengthOf(unsigned char lead) {
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    return lead >= 0xE0 && lead < 0xF0 ? 3 : 1;
}

char32_t CharacterAt(std::string_view text, std::size_t position, std::size_t length) {
    char32_t character = ByteAt(text, position) & (length == 2 ? 0x1F : 0x0F);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char byte = ByteAt(text, position + i);
        if ((byte & 0xC0) != 0x80)
            return 0;
        character = (character << 6) | (byte & 0x3F);
    }
    return character;
}

std::optional<char> FindByteOf(char32_t character) {
    if (character >= 0xA0 && character <= 0xFF)
        return static_cast<char>(character);
    const auto special = std::ranges::find(Specials, character);
    if (character == 0 || special == Specials.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (special - Specials.begin()));
}

} // namespace

std::string ToWindows1252(std::string_view text) {
    std::string bytes;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = LengthOf(ByteAt(text, position));
        const std::optional<char> byte =
            length == 1 ? std::nullopt : FindByteOf(CharacterAt(text, position, length));
        bytes += byte.value_or(text[position]);
        position += byte ? length : 1;
    }
    return bytes;
}

} // namespace Quillbox
