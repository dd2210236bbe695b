// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <array>
#include <cstdint>
#include <span>

namespace Quillbox {

struct Settings;

/// An entry of lstItems and the settings behind it.
struct SyntaxItem {
    const char *Caption; ///< Spanish, UTF-8
    Color Settings::*ColorField;
    std::uint8_t Settings::*StyleField; ///< null for the background, which has no style
};

inline constexpr int SyntaxItemCount = 7;

/// The entries of lstItems in their order.
std::span<const SyntaxItem, SyntaxItemCount> SyntaxItems();

/// The entries of lstStyles, UTF-8. A style is stored as the number of its entry, from 0.
std::span<const char *const> StyleCaptions();

struct ItemAttribute {
    Quillbox::Color Color;
    std::uint8_t Style = 0;
};

/// What the settings dialog has of the colours and styles until they are stored, by row of
/// lstItems.
using ItemAttributes = std::array<ItemAttribute, SyntaxItemCount>;

/// The last row, the background. Its style stays what it is.
inline constexpr int BackgroundRow = SyntaxItemCount - 1;

void LoadColors(ItemAttributes &attributes, const Settings &settings);
void LoadStyles(ItemAttributes &attributes, const Settings &settings);
void SaveColors(const ItemAttributes &attributes, Settings &settings);
void SaveStyles(const ItemAttributes &attributes, Settings &settings);

} // namespace Quillbox
