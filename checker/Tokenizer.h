// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checker/Keywords.h"

#include <cstddef>
#include <string_view>

namespace Quillbox {

enum class TokenKind {
    Word,         // name or keyword; a type mark (% # $) behind it belongs to it
    Number,       // 12  1.5  .5  $FF  %101
    Text,         // "..." in one line
    UnclosedText, // "... up to the end of its line
    Member,       // .name (a label or a type) or \name (a field): never a keyword
    Symbol,       // any other single byte
    LineEnd,      // LF, CR LF or CR
    FileEnd,
};

struct Token {
    TokenKind Kind = TokenKind::FileEnd;
    Keyword Word = Keyword::None;
    std::string_view Text; // the token as it stands in the source, a word without its type mark
    int LineNumber = 1;    // 1-based; a LineEnd belongs to the line that it ends
};

bool IsSymbol(const Token &token, char symbol);

// Cuts source bytes into tokens, without blanks, control bytes and comments. Any bytes are
// accepted; those from 128 on count as letters. After the last token it returns FileEnd for ever.
class Tokenizer {
  public:
    // The source must outlive the tokenizer and its tokens.
    explicit Tokenizer(std::string_view source);

    Token Next();

  private:
    char ByteAt(std::size_t position) const;
    std::size_t EndOfWord(std::size_t position) const;
    std::size_t SkipBlanks(std::size_t position) const;
    void SkipComment();
    Token Take(TokenKind kind, std::size_t end);
    Token TakeLineEnd();
    Token TakeText();
    Token TakeWord();
    Token TakeMember();
    std::size_t EndOfNumber() const;

    std::string_view Source_;
    std::size_t Position_ = 0;
    int LineNumber_ = 1;
};

// The lines of a text as an editor counts them, without an empty one behind the last line end.
int CountLines(std::string_view source);

} // namespace Quillbox
