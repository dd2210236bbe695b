// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/LineRequest.h"

#include <QString>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

constexpr int LineCount = 120;

TextPosition Place(int line, int column) { return {{line}, {column}}; }

TEST(LineRequest, IsALineCountedFromOne) {
    EXPECT_EQ(ReadLineRequest(u"1", LineCount), Place(0, 0));
    EXPECT_EQ(ReadLineRequest(u" 37 ", LineCount), Place(36, 0));
    EXPECT_EQ(ReadLineRequest(u"120", LineCount), Place(119, 0));
}

TEST(LineRequest, MayNameAColumn) {
    EXPECT_EQ(ReadLineRequest(u"12:5", LineCount), Place(11, 4));
    EXPECT_EQ(ReadLineRequest(u"12 : 5", LineCount), Place(11, 4));
    EXPECT_EQ(ReadLineRequest(u"12:0", LineCount), Place(11, 0));
}

TEST(LineRequest, OutsideTheTextMeansTheNearestLine) {
    EXPECT_EQ(ReadLineRequest(u"0", LineCount), Place(0, 0));
    EXPECT_EQ(ReadLineRequest(u"-7", LineCount), Place(0, 0));
    EXPECT_EQ(ReadLineRequest(u"121", LineCount), Place(119, 0));
    EXPECT_EQ(ReadLineRequest(u"99999999999999999999", LineCount), Place(119, 0));
}

TEST(LineRequest, ThatIsNoNumberIsNone) {
    for (const char *text : {"", " ", "doce", "1.5", "12:", ":5", "12:x", "-", "1:2:3", "1e3", "+"})
        EXPECT_EQ(ReadLineRequest(QString(text), LineCount), std::nullopt) << text;
}

} // namespace
} // namespace Quillbox
