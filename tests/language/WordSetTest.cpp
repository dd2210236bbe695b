// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/WordSet.h"

#include <gtest/gtest.h>

namespace Quillbox {

TEST(FoldedWord, IsUpperCaseWhenCaseDoesNotCount) {
    EXPECT_EQ(FoldedWord("Graphics3D_x", CaseSensitivity::Off), "GRAPHICS3D_X");
    EXPECT_EQ(FoldedWord("año", CaseSensitivity::Off), "AÑO");
}

TEST(FoldedWord, IsTheWordItselfWhenCaseCounts) {
    EXPECT_EQ(FoldedWord("Año", CaseSensitivity::On), "Año");
}

TEST(WordSet, FindsEveryOneOfManyWords) {
    WordSet words(CaseSensitivity::Off);
    for (int number = 0; number < 5000; ++number)
        words.Add("word" + std::to_string(number), static_cast<WordSet::Mark>(1 + number % 200));
    for (int number = 0; number < 5000; ++number)
        ASSERT_EQ(words.Find("WORD" + std::to_string(number)), 1 + number % 200);
    for (int number = 5000; number < 10000; ++number)
        ASSERT_EQ(words.Find("word" + std::to_string(number)), WordSet::NoMark);
}

TEST(WordSet, KeepsTheMarkOfTheFirstOfTwoEqualWords) {
    WordSet words(CaseSensitivity::Off);
    words.Add("if", 2);
    words.Add("IF", 7);
    EXPECT_EQ(words.Find("If"), 2);
}

TEST(WordSet, TellsCasesApartWhenTheyCount) {
    WordSet words(CaseSensitivity::On);
    words.Add("If", 2);
    words.Add("Ñu", 3);
    EXPECT_EQ(words.Find("If"), 2);
    EXPECT_EQ(words.Find("if"), WordSet::NoMark);
    EXPECT_EQ(words.Find("Ñu"), 3);
    EXPECT_EQ(words.Find("ñu"), WordSet::NoMark);
}

TEST(WordSet, HasNoEmptyWord) {
    WordSet words(CaseSensitivity::Off);
    words.Add("", 2);
    EXPECT_EQ(words.Find(""), WordSet::NoMark);
    EXPECT_EQ(words.Find("a"), WordSet::NoMark);
}

TEST(WordSet, ReadsAWordAsFarAsItReaches) {
    WordSet words(CaseSensitivity::Off);
    words.Add("end", 5);
    const WordSet::ReadWord read = words.Read("End(1)");
    EXPECT_EQ(read.Length, 3U);
    EXPECT_EQ(read.Tag, 5);
    EXPECT_EQ(words.Read("Ended").Length, 5U);
    EXPECT_EQ(words.Read("Ended").Tag, WordSet::NoMark);
    EXPECT_EQ(words.Read(" end").Length, 0U);
}

} // namespace Quillbox
