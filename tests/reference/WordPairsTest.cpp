// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

#include "base/Windows1252Text.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;

TEST(WordPairs, CutTheHelpLineAtItsFirstDash) {
    QStringList problems;
    const auto words =
        PairWords("Flip\r\n", "Flip [sync%=1] - Muestra el búfer - o no.\r\n", problems);
    ASSERT_EQ(words.size(), 1U);
    EXPECT_EQ(words[0].Name, "Flip");
    EXPECT_EQ(words[0].Signature, "Flip [sync%=1]");
    EXPECT_EQ(words[0].Description, "Muestra el búfer - o no.");
    EXPECT_TRUE(problems.isEmpty());
}

TEST(WordPairs, LeaveALineWithoutADescriptionWhole) {
    QStringList problems;
    const auto words = PairWords("Abs\n", "Abs( x )\n", problems);
    ASSERT_EQ(words.size(), 1U);
    EXPECT_EQ(words[0].Signature, "Abs( x )");
    EXPECT_TRUE(words[0].Description.isEmpty());
}

TEST(WordPairs, RefuseFilesOfDifferentLength) {
    QStringList problems;
    PairWords("Abs\nSgn\n", "Abs x\n", problems);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("2 lines and QuickHelp.txt 1"));
}

TEST(WordPairs, RefuseAHelpLineOfAnotherWord) {
    QStringList problems;
    PairWords("Abs\nSgn\n", "Abs x\nMod x\n", problems);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("QuickHelp.txt, line 2"));
}

TEST(WordPairs, TakeALetterCaseThatDiffers) {
    QStringList problems;
    PairWords("ASin\n", "asin x\n", problems);
    EXPECT_TRUE(problems.isEmpty());
}

TEST(WordPairs, ReadWindows1252) {
    EXPECT_EQ(FromWindows1252("a\xF1o \x96 5 \x80"), "año \u2013 5 \u20AC");
}

} // namespace
} // namespace Quillbox
