// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringScanner.h"

#include "base/Characters.h"

#include <cstring>

namespace Quillbox {

ColouringScanner::ColouringScanner(const ColouringRules &rules, std::string_view text,
                                   TextStyle *styles)
    : Rules_(rules)
    , Text_(text)
    , Styles_(styles) {}

ColouringState ColouringScanner::Run(ColouringState state) {
    if (state == ColouringState::MultiLineComment)
        ScanMultiLineComment(0);
    for (;;) {
        Position_ = ScanSingles(Position_);
        if (Position_ == Text_.size())
            break;
        if (ClassAt(Position_) == ByteClass::Word)
            ScanWord();
        else
            ScanOther();
    }
    return CommentOpen_ ? ColouringState::MultiLineComment : ColouringState::Code;
}

std::size_t ColouringScanner::ScanSingles(std::size_t position) const {
    for (; position < Text_.size() && ClassAt(position) == ByteClass::Single; ++position)
        Styles_[position] = SingleStyleAt(position);
    return position;
}

void ColouringScanner::ScanWord() {
    const WordSet::ReadWord word = Rules_.Words_.Read(Text_.substr(Position_));
    Fill(Position_ + word.Length, static_cast<TextStyle>(word.Tag));
}

void ColouringScanner::ScanOther() {
    const auto code = static_cast<unsigned char>(Text_[Position_]);
    switch (Rules_.Classes_[code]) {
    case ByteClass::Digit:
        return ScanNumber();
    case ByteClass::NumberPrefix:
        return ScanPrefixed();
    case ByteClass::Marker:
        return ScanMarker(Rules_.ClassesWithoutMarkers_[code]);
    case ByteClass::Single:
    case ByteClass::Word:
        break;
    }
}

void ColouringScanner::ScanMarker(ByteClass otherwise) {
    const std::string_view rest = Text_.substr(Position_);
    for (const ColouringRules::Marker &marker : Rules_.Markers_) {
        if (!rest.starts_with(marker.Text))
            continue;
        switch (marker.Kind) {
        case ColouringRules::MarkerKind::Comment:
            return ScanComment();
        case ColouringRules::MarkerKind::MultiLineComment:
            return ScanMultiLineComment(Position_ + marker.Text.size());
        case ColouringRules::MarkerKind::String:
            return ScanString(marker.Text);
        }
    }
    switch (otherwise) {
    case ByteClass::Word:
        return ScanWord();
    case ByteClass::Digit:
        return ScanNumber();
    case ByteClass::NumberPrefix:
        return ScanPrefixed();
    case ByteClass::Single:
    case ByteClass::Marker:
        return Fill(Position_ + 1, SingleStyleAt(Position_));
    }
}

void ColouringScanner::ScanNumber() { Fill(FractionEnd(DigitsEnd(Position_)), TextStyle::Number); }

void ColouringScanner::ScanPrefixed() {
    const std::size_t end = IsBehindOperand() ? Position_ : PrefixedNumberEnd();
    if (end > Position_)
        Fill(end, TextStyle::Number);
    else
        Fill(Position_ + 1, SingleStyleAt(Position_));
}

/// True where no operand may stand: right behind a word, or behind an ordinary word, a number, a
/// string or a closing bracket with blanks between.
bool ColouringScanner::IsBehindOperand() const {
    std::size_t position = Position_;
    if (position > 0 && IsWordByte(Text_[position - 1]))
        return true;
    while (position > 0 && (Text_[position - 1] == ' ' || Text_[position - 1] == '\t'))
        --position;
    if (position == 0)
        return false;
    const char byte = Text_[position - 1];
    switch (Styles_[position - 1]) {
    case TextStyle::Number:
    case TextStyle::String:
        return true;
    case TextStyle::Text:
    case TextStyle::Operator:
        return byte == ')' || byte == ']' || IsWordByte(byte);
    default:
        return false;
    }
}

void ColouringScanner::ScanComment() { Fill(LineEnd(Position_), TextStyle::Comment); }

void ColouringScanner::ScanString(const std::string &delimiter) {
    std::size_t end = Position_ + delimiter.size();
    for (; end < Text_.size() && !IsLineEnd(Text_[end]); ++end)
        if (Text_[end] == delimiter.front() && Text_.substr(end).starts_with(delimiter))
            return Fill(end + delimiter.size(), TextStyle::String);
    Fill(end, TextStyle::String);
}

void ColouringScanner::ScanMultiLineComment(std::size_t searchStart) {
    const std::string &marker = Rules_.MultiLineCommentEnd_;
    const std::size_t found = Text_.find(marker, searchStart);
    CommentOpen_ = found == std::string_view::npos;
    Fill(CommentOpen_ ? Text_.size() : found + marker.size(), TextStyle::MultiLineComment);
}

/// The first place from `position` on that holds no decimal digit.
std::size_t ColouringScanner::DigitsEnd(std::size_t position) const {
    while (position < Text_.size() && IsDigit(Text_[position]))
        ++position;
    return position;
}

std::size_t ColouringScanner::FractionEnd(std::size_t position) const {
    if (ByteAt(position) == '.' && IsDigit(ByteAt(position + 1)))
        position = DigitsEnd(position + 1);
    if ((ByteAt(position) | 0x20) != 'e')
        return position;
    const char sign = ByteAt(position + 1);
    const std::size_t digits = position + (sign == '+' || sign == '-' ? 2 : 1);
    return IsDigit(ByteAt(digits)) ? DigitsEnd(digits) : position;
}

std::size_t ColouringScanner::PrefixedNumberEnd() const {
    const char prefix = Text_[Position_];
    if (prefix == '.')
        return FractionEnd(Position_);
    const auto isDigit = [prefix](char byte) {
        return prefix == '$' ? IsHexDigit(byte) : IsBinaryDigit(byte);
    };
    std::size_t end = Position_ + 1;
    while (isDigit(ByteAt(end)))
        ++end;
    return end == Position_ + 1 ? Position_ : end;
}

std::size_t ColouringScanner::LineEnd(std::size_t position) const {
    while (position < Text_.size() && !IsLineEnd(Text_[position]))
        ++position;
    return position;
}

/// Most tokens are short; a few bytes too many are written over by the tokens behind.
void ColouringScanner::Fill(std::size_t end, TextStyle style) {
    constexpr std::size_t block = 16;
    TextStyle *const start = Styles_ + Position_;
    const std::size_t length = end - Position_;
    const std::size_t room = Text_.size() - Position_;
    Position_ = end;
    if (length <= block && room >= block)
        std::memset(start, static_cast<int>(style), block);
    else
        std::memset(start, static_cast<int>(style), length);
}

} // namespace Quillbox
