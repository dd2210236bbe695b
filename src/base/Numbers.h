// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <cstdint>

namespace Quillbox {

/// The number that `text` begins with: leading blanks are skipped; then an optional sign, digits
/// and a decimal point, or "&H" with hexadecimal or "&O" with octal digits, up to the first
/// character that cannot continue the number. A text that begins with no number is 0.
double LeadingNumber(QStringView text);

/// Nearest whole number, halves to the even neighbour; run-time error 6 outside 32 bits with sign.
std::int32_t ToLong(double number);

/// Nearest whole number, halves to the even neighbour; run-time error 6 outside 0 to 255.
std::uint8_t ToByte(double number);

} // namespace Quillbox
