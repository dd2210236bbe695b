// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/TokenWalk.h"

#include <utility>

namespace Quillbox {

namespace {

bool IsOneOf(const Token &token, std::string_view symbols) {
    return token.Kind == TokenKind::Symbol && symbols.find(token.Text.front()) != symbols.npos;
}

bool IsOpeningBracket(const Token &token) { return IsOneOf(token, "(["); }

bool IsClosingBracket(const Token &token) { return IsOneOf(token, ")]"); }

// A comparison may be written with two signs; the second then stands where a value is expected.
// The type in Object.Name(handle) stands there too.
bool IsPrefix(const Token &token) {
    return token.Word == Keyword::PrefixOperator || token.Kind == TokenKind::Member ||
           IsOneOf(token, "+-~=<>");
}

bool IsInfix(const Token &token) {
    return token.Word == Keyword::InfixOperator || IsOneOf(token, "+-*/^=<>");
}

bool IsName(const Token &token) {
    return token.Kind == TokenKind::Word && token.Word == Keyword::None;
}

bool StartsOperand(const Token &token) {
    return IsName(token) || token.Kind == TokenKind::Number || token.Kind == TokenKind::Text ||
           IsSymbol(token, '(');
}

} // namespace

TokenWalk::TokenWalk(std::string_view source)
    : Tokenizer_(source) {
    Advance();
}

bool TokenWalk::AtStatementEnd() const {
    return Current_.Kind == TokenKind::LineEnd || Current_.Kind == TokenKind::FileEnd ||
           IsSymbol(Current_, ':');
}

void TokenWalk::Advance() {
    if (Mistake_)
        return;
    LastText_ = Current_.Text;
    Current_ = Tokenizer_.Next();
    if (Current_.Kind == TokenKind::UnclosedText)
        Report("cadena de texto sin cerrar");
}

void TokenWalk::PassPlainTokens() {
    do
        PassPlainToken();
    while (!AtStatementEnd() && !ShapesStatements(Current_.Word));
}

void TokenWalk::PassPlainToken() {
    if (IsOpeningBracket(Current_))
        PassBrackets();
    else if (IsClosingBracket(Current_))
        Report("sobra \"" + std::string(Current_.Text) + "\"");
    else
        Advance();
}

// Counts brackets instead of calling itself, so that no depth of them exhausts the call stack.
void TokenWalk::PassBrackets() {
    std::string expected;
    do {
        if (IsOpeningBracket(Current_))
            expected.push_back(IsSymbol(Current_, '(') ? ')' : ']');
        else if (IsSymbol(Current_, expected.back()))
            expected.pop_back();
        else if (IsClosingBracket(Current_) || AtStatementEnd() || ShapesStatements(Current_.Word))
            Report(std::string("falta \"") + expected.back() + "\"");
        Advance();
    } while (!expected.empty() && !Mistake_);
}

void TokenWalk::PassExpression() {
    while (true) {
        while (IsPrefix(Current_))
            Advance();
        if (!StartsOperand(Current_))
            return ReportMissingAfterLast("una expresión");
        PassOperand();
        if (!IsInfix(Current_))
            return;
        Advance();
    }
}

void TokenWalk::PassOperand() {
    do
        PassPlainToken();
    while (IsOpeningBracket(Current_) || Current_.Kind == TokenKind::Member);
}

void TokenWalk::PassName() {
    if (!IsName(Current_))
        return ReportMissingAfterLast("un nombre");
    Advance();
    if (Current_.Kind == TokenKind::Member)
        Advance();
}

void TokenWalk::PassParameters() {
    if (!IsSymbol(Current_, '('))
        return ReportMissingAfterLast("\"(\"");
    PassBrackets();
}

void TokenWalk::ReportMissingAfterLast(std::string_view what) {
    Report(std::string("falta ").append(what) + " después de \"" + std::string(LastText_) + "\"");
}

void TokenWalk::Report(std::string message) { Report(Current_.LineNumber, std::move(message)); }

void TokenWalk::Report(int lineNumber, std::string message) {
    if (Mistake_)
        return;
    Mistake_ = StructureMistake{lineNumber, std::move(message)};
    Current_ = Token{};
}

} // namespace Quillbox
