// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Numbers.h"

#include "fakes/ErrorNumber.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

struct ReadingCase {
    const char16_t *Text;
    double Number;
};

struct RoundingCase {
    double Number;
    int Rounded;
};

TEST(Numbers, ReadTheNumberThatATextBeginsWith) {
    const ReadingCase cases[] = {
        {u"0", 0},
        {u"7", 7},
        {u"16777215", 16777215},
        {u"007", 7},
        {u"  12", 12},
        {u"\t12", 12},
        {u" \t 12", 12},
        {u"12 ", 12},
        {u"+5", 5},
        {u"-5", -5},
        {u" -5", -5},
        {u"10.5", 10.5},
        {u"-10.5", -10.5},
        {u".5", 0.5},
        {u"-.5", -0.5},
        {u"5.", 5},
        {u"0.25", 0.25},
        {u"3.0", 3},
        {u"1.5.5", 1.5},
        {u"1,5", 1},
        {u"12abc", 12},
        {u"12-3", 12},
        {u"4294967296", 4294967296.0},
    };
    for (const ReadingCase &one : cases)
        EXPECT_DOUBLE_EQ(LeadingNumber(one.Text), one.Number)
            << QString::fromUtf16(one.Text).toStdString();
}

TEST(Numbers, ReadHexadecimalAndOctalPrefixes) {
    const ReadingCase cases[] = {
        {u"&HFF", 255}, {u"&hff", 255}, {u"&HfF", 255}, {u"  &HFF", 255}, {u"&H00FFFFFF", 16777215},
        {u"&H9A", 154}, {u"&HG", 0},    {u"&H1G", 1},   {u"&H", 0},       {u"&HF.8", 15},
        {u"&O17", 15},  {u"&o17", 15},  {u"&O18", 1},   {u"&O8", 0},      {u"&O", 0},
    };
    for (const ReadingCase &one : cases)
        EXPECT_DOUBLE_EQ(LeadingNumber(one.Text), one.Number)
            << QString::fromUtf16(one.Text).toStdString();
}

TEST(Numbers, ReadZeroWhereATextBeginsWithNoNumber) {
    const char16_t *const texts[] = {u"",      u" ",   u"-",   u"+",    u".",   u"-.",
                                     u"abc",   u"a12", u"--5", u"+-5",  u"- 5", u"&",
                                     u"& HFF", u"&X1", u"#12", u"rojo", u"$FF", u"\u0663"};
    for (const char16_t *text : texts)
        EXPECT_EQ(LeadingNumber(text), 0.0) << QString::fromUtf16(text).toStdString();
}

TEST(Numbers, RoundToTheNearestLongAndHalvesToTheEvenNeighbour) {
    const RoundingCase cases[] = {
        {0, 0},
        {0.4, 0},
        {0.5, 0},
        {0.6, 1},
        {1.5, 2},
        {2.5, 2},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {-2.6, -3},
        {2147483647, 2147483647},
        {2147483647.4, 2147483647},
        {2147483646.5, 2147483646},
        {-2147483648.0, std::numeric_limits<int>::min()},
        {-2147483648.5, std::numeric_limits<int>::min()},
    };
    for (const RoundingCase &one : cases)
        EXPECT_EQ(ToLong(one.Number), one.Rounded) << one.Number;
}

TEST(Numbers, OutsideThirtyTwoBitsAreRunTimeErrorSix) {
    for (const double number : {2147483648.0, 2147483647.5, -2147483649.0, -2147483648.6, 1e300})
        EXPECT_EQ(ErrorNumberOf([&] { ToLong(number); }), 6) << number;
}

TEST(Numbers, RoundToTheNearestByteAndHalvesToTheEvenNeighbour) {
    const RoundingCase cases[] = {
        {0, 0},     {-0.5, 0},   {-0.4, 0},    {0.5, 0},   {10.5, 10},
        {11.5, 12}, {10.51, 11}, {254.5, 254}, {255, 255}, {255.4, 255},
    };
    for (const RoundingCase &one : cases)
        EXPECT_EQ(ToByte(one.Number), one.Rounded) << one.Number;
}

TEST(Numbers, OutsideAByteAreRunTimeErrorSix) {
    for (const double number : {256.0, 300.0, 255.5, -1.0, -0.6, 1e300})
        EXPECT_EQ(ErrorNumberOf([&] { ToByte(number); }), 6) << number;
}

} // namespace
} // namespace Quillbox
