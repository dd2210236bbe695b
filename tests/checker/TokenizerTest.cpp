// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/Tokenizer.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace Quillbox {

namespace {

std::vector<Token> TokensOf(std::string_view source) {
    Tokenizer tokenizer(source);
    std::vector<Token> tokens;
    for (Token token = tokenizer.Next(); token.Kind != TokenKind::FileEnd; token = tokenizer.Next())
        tokens.push_back(token);
    return tokens;
}

std::vector<std::string_view> TextsOf(std::string_view source) {
    std::vector<std::string_view> texts;
    for (const Token &token : TokensOf(source))
        texts.push_back(token.Text);
    return texts;
}

std::vector<TokenKind> KindsOf(std::string_view source) {
    std::vector<TokenKind> kinds;
    for (const Token &token : TokensOf(source))
        kinds.push_back(token.Kind);
    return kinds;
}

std::vector<Keyword> KeywordsOf(std::string_view source) {
    std::vector<Keyword> keywords;
    for (const Token &token : TokensOf(source))
        keywords.push_back(token.Word);
    return keywords;
}

using Texts = std::vector<std::string_view>;
using Kinds = std::vector<TokenKind>;
using Keywords = std::vector<Keyword>;

} // namespace

TEST(Tokenizer, SplitsAStatementIntoItsTokens) {
    EXPECT_EQ(TextsOf("Plot x+1,20"), (Texts{"Plot", "x", "+", "1", ",", "20"}));
}

TEST(Tokenizer, LeavesTheTypeMarkOutOfAWord) {
    EXPECT_EQ(TextsOf("a$=b#+c%"), (Texts{"a", "=", "b", "+", "c"}));
}

TEST(Tokenizer, TellsHexadecimalAndBinaryNumbersFromTypeMarks) {
    EXPECT_EQ(TextsOf("a$=$Ff+%101"), (Texts{"a", "=", "$Ff", "+", "%101"}));
    EXPECT_EQ(KindsOf("$Ff %101"), (Kinds{TokenKind::Number, TokenKind::Number}));
}

TEST(Tokenizer, EndsABinaryNumberAtTheFirstOtherDigit) {
    EXPECT_EQ(TextsOf("%1012"), (Texts{"%101", "2"}));
}

TEST(Tokenizer, ReadsDecimalNumbersWithAndWithoutDigitsBesideThePoint) {
    EXPECT_EQ(TextsOf("1.5 .5 1. 7"), (Texts{"1.5", ".5", "1.", "7"}));
}

TEST(Tokenizer, EndsANumberAtALetter) { EXPECT_EQ(TextsOf("1To 3"), (Texts{"1", "To", "3"})); }

TEST(Tokenizer, TakesTypesLabelsAndFieldsAsMembers) {
    EXPECT_EQ(TextsOf("p.Jugador\\nombre$"), (Texts{"p", ".Jugador", "\\nombre"}));
    EXPECT_EQ(KindsOf(".inicio"), (Kinds{TokenKind::Member}));
}

TEST(Tokenizer, SeesNoKeywordInAMember) {
    EXPECT_EQ(KeywordsOf("\\Next .Wend"), (Keywords{Keyword::None, Keyword::None}));
}

TEST(Tokenizer, AcceptsBlanksBehindTheSignOfAMember) {
    EXPECT_EQ(TextsOf("p\\ x"), (Texts{"p", "\\ x"}));
}

TEST(Tokenizer, TakesALonePointAsASymbol) {
    EXPECT_EQ(KindsOf(". ,"), (Kinds{TokenKind::Symbol, TokenKind::Symbol}));
}

TEST(Tokenizer, KnowsKeywordsInAnyLetterCase) {
    EXPECT_EQ(KeywordsOf("wEND Wendy"), (Keywords{Keyword::Wend, Keyword::None}));
}

TEST(Tokenizer, JoinsKeywordsOfTwoParts) {
    EXPECT_EQ(KeywordsOf("End If end  function END\tSELECT End Type Else If"),
              (Keywords{Keyword::EndIf, Keyword::EndFunction, Keyword::EndSelect, Keyword::EndType,
                        Keyword::ElseIf}));
}

TEST(Tokenizer, DoesNotJoinAcrossALineEndOrAColon) {
    EXPECT_EQ(KeywordsOf("End\nIf"), (Keywords{Keyword::End, Keyword::None, Keyword::If}));
    EXPECT_EQ(KeywordsOf("Else:If"), (Keywords{Keyword::Else, Keyword::None, Keyword::If}));
}

TEST(Tokenizer, DoesNotJoinOtherWords) {
    EXPECT_EQ(KeywordsOf("End While"), (Keywords{Keyword::End, Keyword::While}));
}

TEST(Tokenizer, LeavesCommentsOut) {
    EXPECT_EQ(TextsOf("a ; \"b\" : c\nd"), (Texts{"a", "\n", "d"}));
}

TEST(Tokenizer, TakesASemicolonInATextAsText) {
    EXPECT_EQ(TextsOf("\"a;b\" c"), (Texts{"\"a;b\"", "c"}));
}

TEST(Tokenizer, EndsAnUnclosedTextAtItsLineEnd) {
    EXPECT_EQ(TextsOf("\"a;b\r\nc"), (Texts{"\"a;b", "\r\n", "c"}));
    EXPECT_EQ(TokensOf("\"a").front().Kind, TokenKind::UnclosedText);
}

TEST(Tokenizer, TakesEveryFormOfLineEndAsOne) {
    const std::vector<Token> tokens = TokensOf("a\nb\r\nc\rd");
    ASSERT_EQ(tokens.size(), 7U);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(tokens[static_cast<std::size_t>(2 * i)].LineNumber, i + 1);
}

TEST(Tokenizer, GivesALineEndTheNumberOfTheLineItEnds) {
    EXPECT_EQ(TokensOf("a\r\n").back().LineNumber, 1);
}

TEST(Tokenizer, TakesControlBytesAsBlanks) {
    using namespace std::string_view_literals;
    EXPECT_EQ(TextsOf("a\0b\x1a"sv), (Texts{"a", "b"}));
}

TEST(Tokenizer, TakesBytesFrom128OnAsLetters) {
    EXPECT_EQ(TextsOf("a\xf1o=1"), (Texts{"a\xf1o", "=", "1"}));
}

TEST(Tokenizer, ReturnsTheEndForEver) {
    Tokenizer tokenizer("");
    EXPECT_EQ(tokenizer.Next().Kind, TokenKind::FileEnd);
    EXPECT_EQ(tokenizer.Next().Kind, TokenKind::FileEnd);
}

TEST(LineCount, LeavesOutTheEmptyLineBehindTheLastLineEnd) {
    EXPECT_EQ(CountLines(""), 0);
    EXPECT_EQ(CountLines("a"), 1);
    EXPECT_EQ(CountLines("a\n"), 1);
    EXPECT_EQ(CountLines("\r\n\r\n"), 2);
    EXPECT_EQ(CountLines("a\rb; c\n\"d"), 3);
}

} // namespace Quillbox
