// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checker/StructureMistake.h"
#include "checker/Tokenizer.h"

#include <optional>
#include <string>
#include <string_view>

namespace Quillbox {

// Walks over the tokens of a program and keeps its first mistake. After a mistake the program
// counts as ended, so that every loop over its tokens ends by itself.
class TokenWalk {
  public:
    explicit TokenWalk(std::string_view source);

    const Token &Current() const { return Current_; }
    const std::optional<StructureMistake> &Mistake() const { return Mistake_; }

    // Whether the current token is a colon, a line end or the end of the text.
    bool AtStatementEnd() const;

    void Advance();
    // Passes the rest of a statement, at least one token, up to its end or a word that divides it.
    void PassPlainTokens();
    // Passes an expression as far as it reaches; a mistake when there is none or a value is
    // missing.
    void PassExpression();
    // Passes the name that the last token asks for.
    void PassName();
    // Passes the round brackets of a declaration.
    void PassParameters();
    // A mistake on the line of the current token.
    void Report(std::string message);
    void Report(int lineNumber, std::string message);

  private:
    void PassPlainToken();
    void PassBrackets();
    void PassOperand();
    void ReportMissingAfterLast(std::string_view what);

    Tokenizer Tokenizer_;
    Token Current_;
    std::string_view LastText_;
    std::optional<StructureMistake> Mistake_;
};

} // namespace Quillbox
