// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Color.h"
#include "base/TextPosition.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

TEST(Color, KeepsRedInTheLowByte) {
    EXPECT_EQ(RgbColor(0x12, 0x34, 0x56).Value, 0x563412);
    EXPECT_EQ(RgbColor(255, 255, 255).Value, 16777215);
}

TEST(Color, GivesItsPartsBack) {
    const Color color = RgbColor(0x12, 0x34, 0x56);

    EXPECT_EQ(RedOf(color), 0x12);
    EXPECT_EQ(GreenOf(color), 0x34);
    EXPECT_EQ(BlueOf(color), 0x56);
}

TEST(Color, LeavesTheTopByteOutOfItsParts) {
    const Color white{-1};

    EXPECT_EQ(RedOf(white), 255);
    EXPECT_EQ(GreenOf(white), 255);
    EXPECT_EQ(BlueOf(white), 255);
}

TEST(TextPosition, IsShownCountedFromOne) {
    EXPECT_EQ(NumberOf(LineIndex{11}), LineNumber{12});
    EXPECT_EQ(NumberOf(ColumnIndex{4}), ColumnNumber{5});
}

TEST(TextRange, IsEmptyWhereItEndsAtItsStart) {
    EXPECT_TRUE((TextRange{{{3}, {4}}, {{3}, {4}}}.IsEmpty()));
    EXPECT_FALSE((TextRange{{{3}, {4}}, {{3}, {5}}}.IsEmpty()));
    EXPECT_FALSE((TextRange{{{3}, {4}}, {{4}, {4}}}.IsEmpty()));
}

} // namespace
} // namespace Quillbox
