// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <string_view>

namespace Quillbox {

/// Whether a byte of UTF-8 begins a character, rather than going on with one.
constexpr bool StartsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

struct EncodedCharacter {
    std::array<char, 4> Bytes;
    std::size_t Size;

    constexpr operator std::string_view() const { return {Bytes.data(), Size}; }
};

constexpr EncodedCharacter EncodeUtf8(char32_t character) {
    const auto lead = [&](unsigned mark, int shift) {
        return static_cast<char>(mark | (character >> shift));
    };
    const auto tail = [&](int shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80)
        return {{lead(0, 0)}, 1};
    if (character < 0x800)
        return {{lead(0xC0, 6), tail(0)}, 2};
    if (character < 0x10000)
        return {{lead(0xE0, 12), tail(6), tail(0)}, 3};
    return {{lead(0xF0, 18), tail(12), tail(6), tail(0)}, 4};
}

struct DecodedCharacter {
    char32_t Value;
    std::size_t Size; ///< in bytes; 0 when the bytes are no UTF-8
};

/// The character that `text` begins with; `text` is not empty.
constexpr DecodedCharacter DecodeUtf8(std::string_view text) {
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const auto size = static_cast<std::size_t>(std::countl_one(lead));
    if (size < 2 || size > 4 || size > text.size())
        return {0, 0};
    char32_t value = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if (StartsCharacter(text[i]))
            return {0, 0};
        value = (value << 6) | (static_cast<unsigned char>(text[i]) & 0x3F);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < smallest[size] || value > 0x10FFFF || isSurrogate)
        return {0, 0};
    return {value, size};
}

} // namespace Quillbox
