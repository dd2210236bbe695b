// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/FindHistory.h"
#include "search/MovingRange.h"
#include "search/ReplacementText.h"
#include "search/TextEdits.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

std::string Applied(const ReplacementText &replacement) {
    const ByteRange groups[] = {{0, 7}, {0, 3}, {4, 7}};
    std::string bytes;
    replacement.AppendTo(bytes, "uno=dos", {groups[0], groups});
    return bytes;
}

std::string WithGroups(std::string_view text) {
    return Applied(ReplacementText::WithGroups(text, "\r\n"));
}

std::string Result(std::string text, const TextEdits &edits) {
    for (auto edit = edits.Edits().rbegin(); edit != edits.Edits().rend(); ++edit)
        text.replace(edit->Range.Start, edit->Range.End - edit->Range.Start, edit->Text);
    return text;
}

} // namespace

TEST(ReplacementText, StandsAsItIsForAPlainTerm) {
    EXPECT_EQ(Applied(ReplacementText::AsItStands("\\1 $1 \\n")), "\\1 $1 \\n");
    EXPECT_FALSE(ReplacementText::AsItStands("\\n").HasLineEnd());
}

TEST(ReplacementText, PutsInWhatTheGroupsTook) {
    EXPECT_EQ(WithGroups("\\2=\\1"), "dos=uno");
    EXPECT_EQ(WithGroups("$2=$1!"), "dos=uno!");
    EXPECT_EQ(WithGroups("[\\0] [$0]"), "[uno=dos] [uno=dos]");
    EXPECT_EQ(WithGroups("\\9x"), "x");
    EXPECT_EQ(WithGroups("\\10"), "uno0");
}

TEST(ReplacementText, PutsInLineEndsAndTabs) {
    EXPECT_EQ(WithGroups("a\\n\\tb"), "a\r\n\tb");
    EXPECT_TRUE(ReplacementText::WithGroups("a\\nb", "\n").HasLineEnd());
    EXPECT_FALSE(ReplacementText::WithGroups("a\\tb\\\\n", "\n").HasLineEnd());
}

TEST(ReplacementText, TakesDoubledSignsForThemselves) {
    EXPECT_EQ(WithGroups("\\\\1 $$1"), "\\1 $1");
}

TEST(ReplacementText, LeavesEverythingElseAlone) {
    EXPECT_EQ(WithGroups("\\q $ \\"), "\\q $ \\");
    EXPECT_EQ(WithGroups("año"), "año");
    EXPECT_EQ(WithGroups(""), "");
}

TEST(TextEdits, JoinsNeighboursAndTakesOverWhatIsBetween) {
    TextEdits edits(TextEdits::Neighbours::Join);
    edits.BeginPiece(0, "uno dos uno");
    edits.Replace({0, 3}, "1");
    edits.Replace({8, 11}, "1");
    EXPECT_EQ(edits.Edits().size(), 1U);
    EXPECT_EQ(edits.Count(), 2U);
    EXPECT_EQ(Result("uno dos uno", edits), "1 dos 1");
}

TEST(TextEdits, KeepsDistantMatchesApart) {
    const std::string text = "uno" + std::string(100'000, ' ') + "uno";
    TextEdits edits(TextEdits::Neighbours::Join);
    edits.BeginPiece(0, text);
    edits.Replace({0, 3}, "1");
    edits.Replace({text.size() - 3, text.size()}, "1");
    EXPECT_EQ(edits.Edits().size(), 2U);
    EXPECT_EQ(Result(text, edits), "1" + std::string(100'000, ' ') + "1");
}

TEST(TextEdits, KeepsAllApartWhenAsked) {
    TextEdits edits(TextEdits::Neighbours::KeepApart);
    edits.BeginPiece(0, "aa");
    edits.Replace({0, 1}, "b");
    edits.Replace({1, 2}, "b");
    EXPECT_EQ(edits.Edits().size(), 2U);
    EXPECT_EQ(Result("aa", edits), "bb");
}

TEST(TextEdits, JoinsNothingOverPieces) {
    TextEdits edits(TextEdits::Neighbours::Join);
    edits.BeginPiece(0, "aa");
    edits.Replace({1, 2}, "bcd");
    edits.BeginPiece(3, "aa");
    edits.Replace({0, 1}, "");
    EXPECT_EQ(edits.Edits().size(), 2U);
    EXPECT_EQ(Result("aa\naa", edits), "abcd\na");
}

TEST(TextEdits, FollowsPlaces) {
    TextEdits edits(TextEdits::Neighbours::Join);
    for (const std::size_t place : {0U, 1U, 3U, 5U, 9U})
        edits.Follow(place);
    edits.BeginPiece(0, "uno uno x");
    edits.Replace({0, 3}, "cuatro");
    edits.Replace({4, 7}, "2");
    EXPECT_EQ(edits.PlaceOf(0), 0U);
    EXPECT_EQ(edits.PlaceOf(1), 6U) << "within a match";
    EXPECT_EQ(edits.PlaceOf(2), 6U);
    EXPECT_EQ(edits.PlaceOf(3), 8U) << "within a match";
    EXPECT_EQ(edits.PlaceOf(4), 10U);
}

TEST(MovingRange, GrowsWithWhatIsPutInAtItsEnds) {
    MovingRange range{10, 20};
    range.Insert(10, 2);
    EXPECT_EQ(range, (MovingRange{10, 22}));
    range.Insert(22, 3);
    EXPECT_EQ(range, (MovingRange{10, 25}));
    range.Insert(26, 5);
    EXPECT_EQ(range, (MovingRange{10, 25}));
    range.Insert(9, 1);
    EXPECT_EQ(range, (MovingRange{11, 26}));
}

TEST(MovingRange, ShrinksWithWhatIsTakenOut) {
    MovingRange range{10, 20};
    range.Delete(0, 5);
    EXPECT_EQ(range, (MovingRange{5, 15}));
    range.Delete(3, 4);
    EXPECT_EQ(range, (MovingRange{3, 11}));
    range.Delete(9, 10);
    EXPECT_EQ(range, (MovingRange{3, 9}));
    range.Delete(0, 100);
    EXPECT_EQ(range, (MovingRange{0, 0}));
}

TEST(FindHistory, HasTheLastTextFirstAndNoneTwice) {
    QStringList history;
    for (const char *text : {"uno", "dos", "uno", ""})
        RememberText(history, text);
    EXPECT_EQ(history, QStringList({"uno", "dos"}));
}

TEST(FindHistory, ForgetsTheOldest) {
    QStringList history;
    for (int number = 0; number < 30; ++number)
        RememberText(history, QString::number(number));
    EXPECT_EQ(history.size(), MostRememberedTexts);
    EXPECT_EQ(history.first(), "29");
}

} // namespace Quillbox
