// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FixedTable.h"

#include "fakes/ErrorNumber.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using Words = FixedTable<QString, 1, 600>;
using Lines = FixedTable<int, 0, 255>;

TEST(FixedTable, HoldsItsFirstAndItsLastSlot) {
    Words words;
    words[1] = "primera";
    words[600] = "última";

    EXPECT_TRUE(words[1] == "primera");
    EXPECT_TRUE(words[600] == "última");
    EXPECT_TRUE(words[300].isEmpty());
}

TEST(FixedTable, EndsInRunTimeErrorNineOutsideItsBounds) {
    Words words;
    Lines lines;

    for (const int index : {0, -1, 601, INT_MIN, INT_MAX})
        EXPECT_EQ(ErrorNumberOf([&] { words[index] = "x"; }), 9) << index;
    for (const int index : {-1, 256})
        EXPECT_EQ(ErrorNumberOf([&] { lines[index] = 1; }), 9) << index;
}

TEST(FixedTable, ReadsAnEmptySlotBeforeAnythingIsWritten) {
    const Lines lines;

    EXPECT_EQ(lines[0], 0);
    EXPECT_EQ(lines[255], 0);
}

TEST(FixedTable, ChecksItsBoundsWhenItIsOnlyRead) {
    const Words words;

    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(words[0]); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(words[601]); }), 9);
}

TEST(FixedTable, KeepsReferencesWhileOtherSlotsAreWritten) {
    Words words;
    QString &first = words[1];
    for (int index = 2; index <= Words::LastIndex; ++index)
        words[index] = "x";

    first = "sigue aquí";

    EXPECT_TRUE(words[1] == "sigue aquí");
}

} // namespace
} // namespace Quillbox
