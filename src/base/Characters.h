// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

// Tests of one character of ASCII, be it a byte of UTF-8, a char16_t or a QChar.

inline constexpr auto IsDigit = [](auto character) {
    return character >= u'0' && character <= u'9';
};

inline constexpr auto IsBinaryDigit = [](auto character) {
    return character == u'0' || character == u'1';
};

inline constexpr auto IsHexDigit = [](auto character) {
    return IsDigit(character) || (character >= u'a' && character <= u'f') ||
           (character >= u'A' && character <= u'F');
};

inline constexpr auto IsLineEnd = [](auto character) {
    return character == u'\n' || character == u'\r';
};

} // namespace Quillbox
