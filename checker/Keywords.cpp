// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/Keywords.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

namespace Quillbox {

namespace {

struct Spelling {
    std::string_view Text;
    Keyword Word;
};

// The first spelling of a keyword is the one that messages show.
constexpr std::array Spellings{
    Spelling{"If", Keyword::If},
    Spelling{"Then", Keyword::Then},
    Spelling{"ElseIf", Keyword::ElseIf},
    Spelling{"Else If", Keyword::ElseIf},
    Spelling{"Else", Keyword::Else},
    Spelling{"EndIf", Keyword::EndIf},
    Spelling{"End If", Keyword::EndIf},
    Spelling{"For", Keyword::For},
    Spelling{"To", Keyword::To},
    Spelling{"Step", Keyword::Step},
    Spelling{"Each", Keyword::Each},
    Spelling{"Next", Keyword::Next},
    Spelling{"While", Keyword::While},
    Spelling{"Wend", Keyword::Wend},
    Spelling{"Repeat", Keyword::Repeat},
    Spelling{"Until", Keyword::Until},
    Spelling{"Forever", Keyword::Forever},
    Spelling{"Select", Keyword::Select},
    Spelling{"Case", Keyword::Case},
    Spelling{"Default", Keyword::Default},
    Spelling{"End Select", Keyword::EndSelect},
    Spelling{"Function", Keyword::Function},
    Spelling{"End Function", Keyword::EndFunction},
    Spelling{"Type", Keyword::Type},
    Spelling{"Field", Keyword::Field},
    Spelling{"End Type", Keyword::EndType},
    Spelling{"End", Keyword::End},
    Spelling{"Not", Keyword::PrefixOperator},
    Spelling{"Abs", Keyword::PrefixOperator},
    Spelling{"Sgn", Keyword::PrefixOperator},
    Spelling{"Int", Keyword::PrefixOperator},
    Spelling{"Float", Keyword::PrefixOperator},
    Spelling{"Str", Keyword::PrefixOperator},
    Spelling{"New", Keyword::PrefixOperator},
    Spelling{"First", Keyword::PrefixOperator},
    Spelling{"Last", Keyword::PrefixOperator},
    Spelling{"Before", Keyword::PrefixOperator},
    Spelling{"After", Keyword::PrefixOperator},
    Spelling{"Handle", Keyword::PrefixOperator},
    Spelling{"Object", Keyword::PrefixOperator},
    Spelling{"And", Keyword::InfixOperator},
    Spelling{"Or", Keyword::InfixOperator},
    Spelling{"Xor", Keyword::InfixOperator},
    Spelling{"Mod", Keyword::InfixOperator},
    Spelling{"Shl", Keyword::InfixOperator},
    Spelling{"Shr", Keyword::InfixOperator},
    Spelling{"Sar", Keyword::InfixOperator},
};

char LowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string InLowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), LowerCase);
    return lower;
}

std::unordered_map<std::string, Keyword> KeywordsBySpelling() {
    std::unordered_map<std::string, Keyword> keywords;
    for (const Spelling &spelling : Spellings)
        keywords.emplace(InLowerCase(spelling.Text), spelling.Word);
    return keywords;
}

} // namespace

Keyword KeywordOf(std::string_view text) {
    static const auto keywords = KeywordsBySpelling();
    const auto found = keywords.find(InLowerCase(text));
    return found == keywords.end() ? Keyword::None : found->second;
}

std::string_view SpellingOf(Keyword word) {
    return std::ranges::find(Spellings, word, &Spelling::Word)->Text;
}

bool ShapesStatements(Keyword word) {
    return word != Keyword::None && word != Keyword::PrefixOperator &&
           word != Keyword::InfixOperator;
}

} // namespace Quillbox
