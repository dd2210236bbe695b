// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ColouringScanner.h"

#include <cstring>

namespace Quillbox {

namespace {

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }
bool IsBinaryDigit(char byte) { return byte == '0' || byte == '1'; }
bool IsHexDigit(char byte) {
    return IsDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}
bool IsLineEnd(char byte) { return byte == '\r' || byte == '\n'; }

} // namespace

ColouringScanner::ColouringScanner(const ColouringRules &rules, std::string_view text,
                                   TextStyle *styles)
    : Rules_(rules)
    , Text_(text)
    , Styles_(styles) {}

ColouringState ColouringScanner::Run(ColouringState state) {
    if (state == ColouringState::MultiLineComment)
        ScanMultiLineComment(0);
    while (Position_ < Text_.size())
        ScanToken(Rules_.Classes_[static_cast<unsigned char>(Text_[Position_])]);
    return CommentOpen_ ? ColouringState::MultiLineComment : ColouringState::Code;
}

void ColouringScanner::ScanToken(ByteClass byteClass) {
    switch (byteClass) {
    case ByteClass::Blank:
        return FillOne(TextStyle::Text);
    case ByteClass::Word:
        return ScanWord();
    case ByteClass::Digit:
        OperandEnded_ = true;
        return Fill(DecimalEnd(Position_), TextStyle::Number);
    case ByteClass::NumberPrefix:
        return ScanPrefixed(TextStyle::Text);
    case ByteClass::NumberPrefixOrOperator:
        return ScanPrefixed(TextStyle::Operator);
    case ByteClass::Marker:
        return ScanMarker();
    case ByteClass::Operator:
        OperandEnded_ = false;
        return FillOne(TextStyle::Operator);
    case ByteClass::OperandEndOperator:
        OperandEnded_ = true;
        return FillOne(TextStyle::Operator);
    case ByteClass::OperandEnd:
        OperandEnded_ = true;
        return FillOne(TextStyle::Text);
    case ByteClass::LineEnd:
    case ByteClass::Other:
        OperandEnded_ = false;
        return FillOne(TextStyle::Text);
    }
}

void ColouringScanner::ScanMarker() {
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
    ScanToken(Rules_.ClassWithoutMarker(Text_[Position_]));
}

void ColouringScanner::ScanWord() {
    const WordSet::ReadWord word = Rules_.Words_.Read(Text_.substr(Position_));
    const auto style = static_cast<TextStyle>(word.Tag);
    OperandEnded_ = style == TextStyle::Text;
    Fill(Position_ + word.Length, style);
}

void ColouringScanner::ScanPrefixed(TextStyle otherwise) {
    const bool behindWord = Position_ > 0 && IsWordByte(Text_[Position_ - 1]);
    const std::size_t end = OperandEnded_ || behindWord ? Position_ : PrefixedNumberEnd();
    if (end > Position_) {
        OperandEnded_ = true;
        return Fill(end, TextStyle::Number);
    }
    // A "$" or "%" behind a name is part of it; as an operator of its own it ends the operand.
    if (!behindWord)
        OperandEnded_ = false;
    FillOne(otherwise);
}

void ColouringScanner::ScanComment() { Fill(LineEnd(Position_), TextStyle::Comment); }

void ColouringScanner::ScanString(const std::string &delimiter) {
    OperandEnded_ = true;
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
    OperandEnded_ = false;
    Fill(CommentOpen_ ? Text_.size() : found + marker.size(), TextStyle::MultiLineComment);
}

std::size_t ColouringScanner::DecimalEnd(std::size_t position) const {
    while (IsDigit(ByteAt(position)))
        ++position;
    return FractionEnd(position);
}

std::size_t ColouringScanner::FractionEnd(std::size_t position) const {
    if (ByteAt(position) == '.' && IsDigit(ByteAt(position + 1))) {
        ++position;
        while (IsDigit(ByteAt(position)))
            ++position;
    }
    const char letter = ByteAt(position);
    if (letter != 'e' && letter != 'E')
        return position;
    const char sign = ByteAt(position + 1);
    std::size_t digits = position + (sign == '+' || sign == '-' ? 2 : 1);
    if (!IsDigit(ByteAt(digits)))
        return position;
    while (IsDigit(ByteAt(digits)))
        ++digits;
    return digits;
}

std::size_t ColouringScanner::PrefixedNumberEnd() const {
    const char prefix = Text_[Position_];
    if (prefix == '.')
        return FractionEnd(Position_);
    const auto isDigit = prefix == '$' ? IsHexDigit : IsBinaryDigit;
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

/// NUL behind the end.
char ColouringScanner::ByteAt(std::size_t position) const {
    return position < Text_.size() ? Text_[position] : '\0';
}

void ColouringScanner::Fill(std::size_t end, TextStyle style) {
    std::memset(Styles_ + Position_, static_cast<int>(style), end - Position_);
    Position_ = end;
}

} // namespace Quillbox
