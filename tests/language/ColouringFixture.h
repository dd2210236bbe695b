// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ColouringRules.h"

#include <string>
#include <string_view>
#include <vector>

namespace Quillbox {

/// Comments, strings and a few operators and words as the program's own language has them.
inline LanguageDefinition BlitzLikeLanguage() {
    LanguageDefinition language;
    language.SingleLineComment = "//";
    language.MultiLineCommentStart = "/*";
    language.MultiLineCommentEnd = "*/";
    language.StringDelimiter = "\"";
    language.Operators = "+\n-\n*\n/\n=\n(\n)\n<\n>\n,\n";
    language.Keywords = "\nIF\nTHEN\nPRINT\nLEFT\nAÑO";
    language.UserWords = "\nMoveShip\nif\nniño";
    return language;
}

/// One letter per byte: . text, n number, k keyword, o operator, c comment, m multi-line comment,
/// s string, u user word.
inline std::string Letters(const std::vector<TextStyle> &styles) {
    std::string letters;
    for (const TextStyle style : styles)
        letters += ".nkocmsu"[static_cast<std::size_t>(style)];
    return letters;
}

inline std::string Coloured(const LanguageDefinition &language, std::string_view text,
                            ColouringState state = ColouringState::Code) {
    std::vector<TextStyle> styles(text.size());
    ColouringRules(language).Colour(text, state, styles.data());
    return Letters(styles);
}

inline std::string Coloured(std::string_view text) { return Coloured(BlitzLikeLanguage(), text); }

inline ColouringState StateBehind(std::string_view text,
                                  ColouringState state = ColouringState::Code) {
    std::vector<TextStyle> styles(text.size());
    return ColouringRules(BlitzLikeLanguage()).Colour(text, state, styles.data());
}

} // namespace Quillbox
