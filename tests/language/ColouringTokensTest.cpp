// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringTokens.h"

#include "ColouringFixture.h"

#include <gtest/gtest.h>

namespace Quillbox {

namespace {

std::string WordAt(std::string_view line, std::size_t position) {
    const WordExtent word = WordTouching(line, position);
    return std::string(line.substr(word.Start, word.Length));
}

TokenClass ClassAt(std::string_view line, std::size_t position) {
    std::vector<TextStyle> styles(line.size());
    ColouringRules(BlitzLikeLanguage()).Colour(line, ColouringState::Code, styles.data());
    return TokenClassTouching(line, position, [&](std::size_t byte) { return styles.at(byte); });
}

} // namespace

TEST(WordTouching, IsTheOneThatBeginsEndsOrLiesThere) {
    EXPECT_EQ(WordAt("a foo+b", 2), "foo");
    EXPECT_EQ(WordAt("a foo+b", 3), "foo");
    EXPECT_EQ(WordAt("a foo+b", 5), "foo");
    EXPECT_EQ(WordAt("a foo+b", 6), "b");
    EXPECT_EQ(WordAt("a foo+b", 7), "b");
}

TEST(WordTouching, IsEmptyBetweenOtherCharacters) {
    EXPECT_EQ(WordAt("a  b", 2), "");
    EXPECT_EQ(WordAt("", 0), "");
    EXPECT_EQ(WordAt("(+)", 1), "");
}

TEST(WordTouching, HasAccentedLetters) { EXPECT_EQ(WordAt("el año", 4), "año"); }

TEST(WordTouching, DoesNotBeginWithDigits) {
    EXPECT_EQ(WordAt("12", 1), "");
    EXPECT_EQ(WordAt("12ab", 0), "");
    EXPECT_EQ(WordAt("12ab", 2), "ab");
    EXPECT_EQ(WordAt("12ab", 4), "ab");
    EXPECT_EQ(WordAt("a12", 3), "a12");
}

TEST(TokenClass, TellsKeywordsFromOtherWords) {
    EXPECT_EQ(ClassAt("if foo", 0), TokenClass::Keyword);
    EXPECT_EQ(ClassAt("if foo", 2), TokenClass::Keyword);
    EXPECT_EQ(ClassAt("if foo", 3), TokenClass::Unclassified);
    EXPECT_EQ(ClassAt("moveship", 4), TokenClass::Unclassified);
}

TEST(TokenClass, OfNoWordIsThatOfTheCharacterBehindOrElseBefore) {
    EXPECT_EQ(ClassAt("  ", 1), TokenClass::Text);
    EXPECT_EQ(ClassAt("", 0), TokenClass::Text);
    EXPECT_EQ(ClassAt("12 ", 0), TokenClass::Number);
    EXPECT_EQ(ClassAt("12 ", 2), TokenClass::Number);
    EXPECT_EQ(ClassAt(" + ", 1), TokenClass::Operator);
    EXPECT_EQ(ClassAt(" + ", 2), TokenClass::Operator);
    EXPECT_EQ(ClassAt("\" \" ", 1), TokenClass::String);
    EXPECT_EQ(ClassAt("// ", 3), TokenClass::Comment);
}

TEST(TokenClass, OfAWordInACommentOrStringIsTheirs) {
    EXPECT_EQ(ClassAt("// if", 4), TokenClass::Comment);
    EXPECT_EQ(ClassAt("/* if */", 4), TokenClass::Comment);
    EXPECT_EQ(ClassAt("\"if\"", 2), TokenClass::String);
}

TEST(TokenClass, OfLettersInANumberIsNumber) {
    EXPECT_EQ(ClassAt("=$FF", 3), TokenClass::Number);
    EXPECT_EQ(ClassAt("1e5", 2), TokenClass::Number);
}

} // namespace Quillbox
