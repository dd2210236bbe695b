// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/Tokenizer.h"

#include "base/Characters.h"

#include <string>

namespace Quillbox {

namespace {

bool IsLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_' ||
           static_cast<unsigned char>(byte) >= 128;
}

bool IsBlank(char byte) { return static_cast<unsigned char>(byte) <= ' ' && !IsLineEnd(byte); }

bool IsTypeMark(char byte) { return byte == '%' || byte == '#' || byte == '$'; }

} // namespace

bool IsSymbol(const Token &token, char symbol) {
    return token.Kind == TokenKind::Symbol && token.Text.front() == symbol;
}

Tokenizer::Tokenizer(std::string_view source)
    : Source_(source) {}

Token Tokenizer::Next() {
    Position_ = SkipBlanks(Position_);
    SkipComment();
    if (Position_ == Source_.size())
        return Take(TokenKind::FileEnd, Position_);
    const char byte = Source_[Position_];
    if (IsLineEnd(byte))
        return TakeLineEnd();
    if (byte == '"')
        return TakeText();
    if (IsLetter(byte))
        return TakeWord();
    if (const std::size_t end = EndOfNumber(); end != Position_)
        return Take(TokenKind::Number, end);
    if (byte == '.' || byte == '\\')
        return TakeMember();
    return Take(TokenKind::Symbol, Position_ + 1);
}

// A NUL stands for everything behind the end, so that looking ahead needs no other check.
char Tokenizer::ByteAt(std::size_t position) const {
    return position < Source_.size() ? Source_[position] : '\0';
}

std::size_t Tokenizer::EndOfWord(std::size_t position) const {
    while (IsLetter(ByteAt(position)) || IsDigit(ByteAt(position)))
        ++position;
    return position;
}

std::size_t Tokenizer::SkipBlanks(std::size_t position) const {
    while (position < Source_.size() && IsBlank(Source_[position]))
        ++position;
    return position;
}

void Tokenizer::SkipComment() {
    if (ByteAt(Position_) != ';')
        return;
    while (Position_ < Source_.size() && !IsLineEnd(Source_[Position_]))
        ++Position_;
}

Token Tokenizer::Take(TokenKind kind, std::size_t end) {
    const Token token{kind, Keyword::None, Source_.substr(Position_, end - Position_), LineNumber_};
    Position_ = end;
    return token;
}

Token Tokenizer::TakeLineEnd() {
    const bool isPair = Source_[Position_] == '\r' && ByteAt(Position_ + 1) == '\n';
    const Token token = Take(TokenKind::LineEnd, Position_ + (isPair ? 2 : 1));
    ++LineNumber_;
    return token;
}

Token Tokenizer::TakeText() {
    std::size_t end = Position_ + 1;
    while (end < Source_.size() && Source_[end] != '"' && !IsLineEnd(Source_[end]))
        ++end;
    if (ByteAt(end) == '"')
        return Take(TokenKind::Text, end + 1);
    return Take(TokenKind::UnclosedText, end);
}

Token Tokenizer::TakeWord() {
    Token token = Take(TokenKind::Word, EndOfWord(Position_));
    token.Word = KeywordOf(token.Text);
    if (token.Word == Keyword::End || token.Word == Keyword::Else) {
        const std::size_t second = SkipBlanks(Position_);
        const std::size_t end = EndOfWord(second);
        const std::string_view secondText = Source_.substr(second, end - second);
        const Keyword both = KeywordOf(std::string(token.Text).append(" ").append(secondText));
        if (both != Keyword::None) {
            token.Word = both;
            Position_ = end;
        }
    }
    if (IsTypeMark(ByteAt(Position_)))
        ++Position_;
    return token;
}

Token Tokenizer::TakeMember() {
    const std::size_t name = SkipBlanks(Position_ + 1);
    if (!IsLetter(ByteAt(name)))
        return Take(TokenKind::Symbol, Position_ + 1);
    const Token token = Take(TokenKind::Member, EndOfWord(name));
    if (IsTypeMark(ByteAt(Position_)))
        ++Position_;
    return token;
}

// The current position when no number begins there.
std::size_t Tokenizer::EndOfNumber() const {
    const char first = Source_[Position_];
    const char second = ByteAt(Position_ + 1);
    std::size_t end = Position_;
    const auto skip = [&](auto accepts) {
        while (accepts(ByteAt(end)))
            ++end;
    };
    if ((first == '$' && IsHexDigit(second)) || (first == '%' && IsBinaryDigit(second))) {
        ++end;
        first == '$' ? skip(IsHexDigit) : skip(IsBinaryDigit);
    } else if (IsDigit(first) || (first == '.' && IsDigit(second))) {
        skip(IsDigit);
        if (ByteAt(end) == '.')
            ++end;
        skip(IsDigit);
    }
    return end;
}

int CountLines(std::string_view source) {
    Tokenizer tokenizer(source);
    Token token = tokenizer.Next();
    while (token.Kind != TokenKind::FileEnd)
        token = tokenizer.Next();
    const bool lastIsEmpty = source.empty() || IsLineEnd(source.back());
    return lastIsEmpty ? token.LineNumber - 1 : token.LineNumber;
}

} // namespace Quillbox
