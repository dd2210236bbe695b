// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringTokens.h"

#include "base/Characters.h"

namespace Quillbox {

namespace {

TokenClass ClassOf(TextStyle style) {
    switch (style) {
    case TextStyle::Number:
        return TokenClass::Number;
    case TextStyle::Keyword:
        return TokenClass::Keyword;
    case TextStyle::Operator:
        return TokenClass::Operator;
    case TextStyle::Comment:
    case TextStyle::MultiLineComment:
        return TokenClass::Comment;
    case TextStyle::String:
        return TokenClass::String;
    case TextStyle::Text:
    case TextStyle::UserWord:
        break;
    }
    return TokenClass::Text;
}

} // namespace

WordExtent WordTouching(std::string_view line, std::size_t position) {
    std::size_t start = position;
    while (start > 0 && IsWordByte(line[start - 1]))
        --start;
    std::size_t end = position;
    while (end < line.size() && IsWordByte(line[end]))
        ++end;
    while (start < end && IsDigit(line[start]))
        ++start;
    if (position < start || start == end)
        return {position, 0};
    return {start, end - start};
}

TokenClass TokenClassTouching(std::string_view line, std::size_t position,
                              const std::function<TextStyle(std::size_t)> &styleOf) {
    const WordExtent word = WordTouching(line, position);
    if (word.Length > 0) {
        const TokenClass wordClass = ClassOf(styleOf(word.Start));
        return wordClass == TokenClass::Text ? TokenClass::Unclassified : wordClass;
    }
    const TokenClass behind =
        position < line.size() ? ClassOf(styleOf(position)) : TokenClass::Text;
    if (behind != TokenClass::Text || position == 0)
        return behind;
    return ClassOf(styleOf(position - 1));
}

} // namespace Quillbox
