// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ColorInsertion.h"

#include "fakes/FakeEditor.h"
#include "fakes/FakeSystem.h"
#include "fakes/TestRow.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

struct ColorRow : TestRow {
    int Value; ///< 0xBBGGRR
    const char *Text;
};

class ColorTextOf : public testing::TestWithParam<ColorRow> {};

TEST_P(ColorTextOf, NamesRedGreenAndBlue) {
    EXPECT_EQ(ColorText({GetParam().Value}), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(EvenDigits, ColorTextOf,
                         testing::Values(ColorRow{"Red", 0x0000FF, "255,0,0"},
                                         ColorRow{"Green", 0x00FF00, "0,255,0"},
                                         ColorRow{"Blue", 0xFF0000, "0,0,255"},
                                         ColorRow{"White", 0xFFFFFF, "255,255,255"},
                                         ColorRow{"Lime", 0x00FF80, "128,255,0"},
                                         ColorRow{"DarkRed", 0x000010, "16,0,0"},
                                         ColorRow{"Mixed", 0x123456, "86,52,18"}),
                         RowName);

// The digits are filled up by two, so an odd count of them is read one place off.
INSTANTIATE_TEST_SUITE_P(OddDigits, ColorTextOf,
                         testing::Values(ColorRow{"FiveDigits", 0x0FFFFF, "255,255,0"},
                                         ColorRow{"ThreeDigits", 0x000FFF, "255,0,0"},
                                         ColorRow{"OneDigit", 0x00000F, "0,0,0"},
                                         ColorRow{"OtherFiveDigits", 0x012345, "52,18,0"},
                                         ColorRow{"Black", 0x000000, "0,0,0"}),
                         RowName);

struct DigitsRow : TestRow {
    const char *Digits;
    const char *Decimal;
};

class HexToDecOf : public testing::TestWithParam<DigitsRow> {};

TEST_P(HexToDecOf, IsTheDecimalText) {
    EXPECT_EQ(HexToDec(QString::fromUtf8(GetParam().Digits)), GetParam().Decimal);
}

INSTANTIATE_TEST_SUITE_P(TwoDigits, HexToDecOf,
                         testing::Values(DigitsRow{"Zero", "00", "0"}, DigitsRow{"Nine", "09", "9"},
                                         DigitsRow{"Ten", "0A", "10"},
                                         DigitsRow{"Largest", "FF", "255"},
                                         DigitsRow{"LowerCaseCountsAsZero", "a1", "1"},
                                         DigitsRow{"OthersCountAsZero", "1G", "16"}),
                         RowName);

TEST(FindColor, ReadsThreeNumbers) {
    EXPECT_EQ(FindColor(QStringLiteral("255, 128,0")), RgbColor(255, 128, 0));
}

TEST(FindColor, IsNothingForAnyOtherText) {
    for (const char *text : {"", "1,2", "1,2,3,4", "256,0,0", "-1,0,0", "a,b,c", "1,,3"})
        EXPECT_EQ(FindColor(QString::fromUtf8(text)), std::nullopt) << text;
}

class InsertingAColor : public testing::Test {
  protected:
    void Choose(std::optional<Color> color) {
        Questions.Colors.push_back(color);
        Command.mnuEdicion_InsertarRGB_Click(Editor);
    }

    CallLog Log;
    FakeDisk Disk;
    FakeEditor Editor{Log, Disk};
    FakeDialogs Questions{Log};
    ColorInsertion Command{Questions};
};

TEST_F(InsertingAColor, ReplacesTheSelectionByTheChosenColor) {
    Choose(RgbColor(255, 128, 0));

    EXPECT_THAT(Log.Calls(),
                ElementsAre("dialogs.ShowColor 16777215", "editor.ReplaceSel 255,128,0"));
}

TEST_F(InsertingAColor, InsertsNothingWhenThePersonCancels) {
    Choose(std::nullopt);

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowColor 16777215"));
}

TEST_F(InsertingAColor, StartsAtTheLastChosenColor) {
    Choose(RgbColor(1, 2, 3));
    Choose(std::nullopt);
    Log.Clear();

    Choose(std::nullopt);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("dialogs.ShowColor " + std::to_string(RgbColor(1, 2, 3).Value)));
}

TEST_F(InsertingAColor, StartsAtTheColorThatIsSelectedAsText) {
    Editor.Content = QStringLiteral("\nColor 10,20,30 ; gris");
    Editor.Selection = {{{1}, {6}}, {{1}, {14}}};

    Choose(std::nullopt);

    EXPECT_THAT(Log.Calls(),
                ElementsAre("dialogs.ShowColor " + std::to_string(RgbColor(10, 20, 30).Value)));
}

} // namespace
} // namespace Quillbox
