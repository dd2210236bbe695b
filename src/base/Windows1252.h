// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace Quillbox {

/// Windows-1252 between 80 and 9F. The bytes 81, 8D, 8F, 90 and 9D have no character there and
/// stand for the control characters of their numbers.
inline constexpr std::array<char16_t, 32> Windows1252From80To9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

/// The characters of Windows-1252 by byte value. Outside 80 to 9F a byte is the character of its
/// own number.
constexpr std::array<char16_t, 256> MakeWindows1252() {
    std::array<char16_t, 256> codePage{};
    for (std::size_t byte = 0; byte < codePage.size(); ++byte)
        codePage[byte] = static_cast<char16_t>(byte);
    for (std::size_t i = 0; i < Windows1252From80To9F.size(); ++i)
        codePage[0x80 + i] = Windows1252From80To9F[i];
    return codePage;
}

} // namespace Quillbox
