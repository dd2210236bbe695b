// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace Quillbox {

// The words that shape a program. Words written in two parts ("End If") are one keyword.
// Every other word of the language is None: the structure does not depend on it.
enum class Keyword {
    None,
    If,
    Then,
    ElseIf,
    Else,
    EndIf,
    For,
    To,
    Step,
    Each,
    Next,
    While,
    Wend,
    Repeat,
    Until,
    Forever,
    Select,
    Case,
    Default,
    EndSelect,
    Function,
    EndFunction,
    Type,
    Field,
    EndType,
    End,
    PrefixOperator,
    InfixOperator,
};

// The keyword written as `text` in any letter case, the parts of a two-part word one blank apart.
Keyword KeywordOf(std::string_view text);

// The usual spelling of a keyword of the structure, for messages.
std::string_view SpellingOf(Keyword word);

// Whether the word can stand only where a statement begins or is divided, never in an expression.
bool ShapesStatements(Keyword word);

} // namespace Quillbox
