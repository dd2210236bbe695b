// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace Quillbox {

/// A colour reference as the settings file holds it: 0x00BBGGRR, red in the low byte.
struct Color {
    std::int32_t Value = 0;
    bool operator==(const Color &) const = default;
};

constexpr Color RgbColor(int red, int green, int blue) {
    return {red | (green << 8) | (blue << 16)};
}
constexpr int RedOf(Color color) { return color.Value & 0xFF; }
constexpr int GreenOf(Color color) { return (color.Value >> 8) & 0xFF; }
constexpr int BlueOf(Color color) { return (color.Value >> 16) & 0xFF; }

} // namespace Quillbox
