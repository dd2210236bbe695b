// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ColouringExtent.h"

#include <gtest/gtest.h>

namespace Quillbox {

namespace {

ColouringExtent ColouredUpTo(std::int64_t end) {
    ColouringExtent extent;
    extent.Advance(end);
    return extent;
}

} // namespace

TEST(ColouringExtent, EndsAtAnInsertionAndRemembersWhatLiesBehindIt) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(40, 5);
    EXPECT_EQ(extent.ValidEnd, 40);
    EXPECT_EQ(extent.ChangedEnd, 45);
    EXPECT_EQ(extent.OldEnd, 105);
}

TEST(ColouringExtent, EndsAtADeletionAndRemembersWhatLiesBehindIt) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Delete(40, 5);
    EXPECT_EQ(extent.ValidEnd, 40);
    EXPECT_EQ(extent.ChangedEnd, 40);
    EXPECT_EQ(extent.OldEnd, 95);
}

TEST(ColouringExtent, IsNotTouchedByEditsBehindIt) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(100, 5);
    extent.Delete(102, 3);
    EXPECT_EQ(extent.ValidEnd, 100);
    EXPECT_EQ(extent.OldEnd, 100);
}

TEST(ColouringExtent, JumpsOnlyFromALineBehindAllEdits) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(10, 5);
    extent.Insert(60, 5);
    EXPECT_EQ(extent.ValidEnd, 10);
    EXPECT_FALSE(extent.MayJump(30));
    EXPECT_FALSE(extent.MayJump(65));
    EXPECT_TRUE(extent.MayJump(66));
    EXPECT_FALSE(extent.MayJump(110));
    extent.Jump();
    EXPECT_EQ(extent.ValidEnd, 110);
}

TEST(ColouringExtent, DoesNotTakeNewColoursForThoseBeforeAfterAnotherEdit) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(10, 5);
    extent.Advance(50);
    extent.Insert(20, 1);
    EXPECT_FALSE(extent.MayJump(51));
    EXPECT_TRUE(extent.MayJump(52));
}

TEST(ColouringExtent, MovesTheEndOfEarlierEditsWithTheText) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(60, 5);
    extent.Insert(10, 20);
    EXPECT_EQ(extent.ChangedEnd, 85);
    extent.Delete(0, 30);
    EXPECT_EQ(extent.ChangedEnd, 55);
    EXPECT_EQ(extent.OldEnd, 95);
    EXPECT_EQ(extent.ValidEnd, 0);
}

TEST(ColouringExtent, HasNothingToJumpToWhenItsEndIsDeleted) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Delete(40, 60);
    EXPECT_EQ(extent.ValidEnd, 40);
    EXPECT_EQ(extent.OldEnd, 40);
    EXPECT_FALSE(extent.MayJump(50));
}

TEST(ColouringExtent, StartsAgainAtWhatIsShownWhenUserWordsChange) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.InvalidateUserWords(70);
    EXPECT_EQ(extent.ValidEnd, 70);
    EXPECT_EQ(extent.OldEnd, 70);
    extent.Advance(100);
    EXPECT_EQ(extent.ValidEnd, 100);
}

TEST(ColouringExtent, ComesBackToTextWithOldUserWordsWhenItShows) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.InvalidateUserWords(70);
    extent.Advance(100);
    extent.Show(80);
    EXPECT_EQ(extent.ValidEnd, 100);
    extent.Show(20);
    EXPECT_EQ(extent.ValidEnd, 20);
    EXPECT_EQ(extent.OldEnd, 100);
    EXPECT_FALSE(extent.MayJump(70));
    EXPECT_TRUE(extent.MayJump(71));
}

TEST(ColouringExtent, KnowsTextWithOldUserWordsAfterEditsBeforeIt) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.InvalidateUserWords(70);
    extent.Advance(100);
    extent.Insert(10, 7);
    EXPECT_EQ(extent.StaleEnd, 77);
    extent.Delete(0, 20);
    EXPECT_EQ(extent.StaleEnd, 57);
}

TEST(ColouringExtent, ForgetsEverythingBehindAnInvalidPosition) {
    ColouringExtent extent = ColouredUpTo(100);
    extent.Insert(60, 5);
    extent.InvalidateFrom(0);
    EXPECT_EQ(extent.ValidEnd, 0);
    EXPECT_EQ(extent.OldEnd, 0);
}

} // namespace Quillbox
