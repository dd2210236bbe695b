// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/Pcx.h"
#include "media/Targa.h"

#include <QByteArray>
#include <gmock/gmock.h>

#include <random>

namespace Quillbox {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Green = 0xFF00FF00;
constexpr std::uint32_t Blue = 0xFF0000FF;
constexpr std::uint32_t White = 0xFFFFFFFF;

void AppendWord(QByteArray &bytes, int value) {
    bytes.append(static_cast<char>(value & 0xFF));
    bytes.append(static_cast<char>(value >> 8 & 0xFF));
}

struct TargaHeader {
    int Type;
    int Width = 2;
    int Height = 2;
    int Depth = 24;
    int Descriptor = 0x20; ///< the first row is the top one
    int PaletteCount = 0;
    int PaletteFirst = 0;
};

QByteArray Targa(const TargaHeader &header, const QByteArray &rest) {
    QByteArray bytes;
    bytes.append('\0').append(header.PaletteCount > 0 ? '\1' : '\0');
    bytes.append(static_cast<char>(header.Type));
    AppendWord(bytes, header.PaletteFirst);
    AppendWord(bytes, header.PaletteCount);
    bytes.append(header.PaletteCount > 0 ? '\x18' : '\0').append(4, '\0');
    AppendWord(bytes, header.Width);
    AppendWord(bytes, header.Height);
    bytes.append(static_cast<char>(header.Depth)).append(static_cast<char>(header.Descriptor));
    return bytes + rest;
}

const QByteArray BgrPixels = QByteArray::fromHex("0000ff 00ff00 ff0000 ffffff");
const QByteArray BgrPalette = BgrPixels;

QByteArray PlainTarga() { return Targa({2}, BgrPixels); }
QByteArray PackedTarga() { return Targa({10}, QByteArray::fromHex("81 0000ff 01 ff0000 ffffff")); }
QByteArray PaletteTarga() {
    return Targa({.Type = 1, .Depth = 8, .PaletteCount = 4},
                 BgrPalette + QByteArray::fromHex("03020100"));
}

/// A picture of two lines, with a byte of filling in each.
QByteArray Pcx(int planes, const QByteArray &packed, int width = 3, int height = 2) {
    QByteArray bytes = QByteArray::fromHex("0a050108 00000000");
    AppendWord(bytes, width - 1);
    AppendWord(bytes, height - 1);
    bytes.append(53, '\0').append(static_cast<char>(planes));
    AppendWord(bytes, width + 1);
    bytes.append(128 - bytes.size(), '\0');
    return bytes + packed;
}

QByteArray PcxPalette() {
    QByteArray bytes = QByteArray::fromHex("0c ff0000 00ff00 0000ff");
    bytes.append(769 - bytes.size(), '\xff');
    return bytes;
}

QByteArray PalettePcx() {
    return Pcx(1, QByteArray::fromHex("c3 00 00 01 02 c1ff 00") + PcxPalette());
}
QByteArray ColorPcx() {
    return Pcx(3, QByteArray::fromHex("c1ff 00 00 00  00 c1ff 00 00  00 00 c1ff 00 "
                                      "c4ff c4ff c4ff"));
}

TEST(TargaPictures, ArePlainColours) {
    const Raster picture = ReadTarga(PlainTarga());
    EXPECT_EQ(picture.Problem, PictureProblem::None);
    EXPECT_EQ(picture.Size, QSize(2, 2));
    EXPECT_THAT(picture.Pixels, ElementsAre(Red, Green, Blue, White));
}

TEST(TargaPictures, StartWithTheirLowestRowUnlessTheyTellOtherwise) {
    EXPECT_THAT(ReadTarga(Targa({.Type = 2, .Descriptor = 0}, BgrPixels)).Pixels,
                ElementsAre(Blue, White, Red, Green));
    EXPECT_THAT(ReadTarga(Targa({.Type = 2, .Descriptor = 0x30}, BgrPixels)).Pixels,
                ElementsAre(Green, Red, White, Blue));
}

TEST(TargaPictures, AreRunsAndSinglePixels) {
    const Raster picture = ReadTarga(PackedTarga());
    EXPECT_EQ(picture.Problem, PictureProblem::None);
    EXPECT_THAT(picture.Pixels, ElementsAre(Red, Red, Blue, White));
}

TEST(TargaPictures, EndWithTheirLastPixelThoughARunGoesOn) {
    EXPECT_THAT(ReadTarga(Targa({10}, QByteArray::fromHex("ff 0000ff"))).Pixels, Each(Red));
}

TEST(TargaPictures, AreGrey) {
    EXPECT_THAT(
        ReadTarga(Targa({.Type = 3, .Depth = 8}, QByteArray::fromHex("00 80 ff 01"))).Pixels,
        ElementsAre(0xFF000000, 0xFF808080, White, 0xFF010101));
    EXPECT_THAT(ReadTarga(Targa({.Type = 11, .Depth = 8}, QByteArray::fromHex("83 80"))).Pixels,
                Each(0xFF808080));
}

TEST(TargaPictures, HaveAPalette) {
    EXPECT_THAT(ReadTarga(PaletteTarga()).Pixels, ElementsAre(White, Blue, Green, Red));
    EXPECT_THAT(ReadTarga(Targa({.Type = 9, .Depth = 8, .PaletteCount = 4},
                                BgrPalette + QByteArray::fromHex("83 02")))
                    .Pixels,
                Each(Blue));
}

TEST(TargaPictures, AreBlackWhereThePaletteHasNoEntry) {
    EXPECT_THAT(ReadTarga(Targa({.Type = 1, .Depth = 8, .PaletteCount = 4, .PaletteFirst = 10},
                                BgrPalette + QByteArray::fromHex("0a 09 0d 0e")))
                    .Pixels,
                ElementsAre(Red, 0xFF000000, White, 0xFF000000));
}

TEST(TargaPictures, HaveNoPaletteWhenTheySaySoThoughTheyCountItsEntries) {
    QByteArray color = Targa({.Type = 2, .PaletteCount = 1}, BgrPixels);
    QByteArray grey =
        Targa({.Type = 3, .Depth = 8, .PaletteCount = 1}, QByteArray::fromHex("00 80 ff 01"));
    color[1] = grey[1] = '\0';
    EXPECT_THAT(ReadTarga(color).Pixels, ElementsAre(Red, Green, Blue, White));
    EXPECT_THAT(ReadTarga(grey).Pixels, ElementsAre(0xFF000000, 0xFF808080, White, 0xFF010101));
}

TEST(TargaPictures, HaveFiveBitsOfEachColour) {
    EXPECT_THAT(
        ReadTarga(Targa({.Type = 2, .Depth = 16}, QByteArray::fromHex("007c e003 1f00 ff7f")))
            .Pixels,
        ElementsAre(Red, Green, Blue, White));
}

TEST(TargaPictures, AreTransparentOnlyWhenTheySayThatTheyHaveTransparency) {
    const QByteArray pixels = QByteArray::fromHex("0000ff00 0000ff80 0000ffff 0000ff01");
    EXPECT_THAT(ReadTarga(Targa({.Type = 2, .Depth = 32, .Descriptor = 0x28}, pixels)).Pixels,
                ElementsAre(0x00FF0000, 0x80FF0000, Red, 0x01FF0000));
    EXPECT_THAT(ReadTarga(Targa({.Type = 2, .Depth = 32}, pixels)).Pixels, Each(Red));
}

TEST(TargaPictures, OfOtherKindsAreNotKnown) {
    for (const TargaHeader &header :
         {TargaHeader{0}, TargaHeader{4}, TargaHeader{32}, TargaHeader{.Type = 2, .Depth = 8},
          TargaHeader{.Type = 3, .Depth = 24}, TargaHeader{.Type = 1, .Depth = 8}})
        EXPECT_EQ(ReadTarga(Targa(header, BgrPixels)).Problem, PictureProblem::UnknownFormat)
            << header.Type << ' ' << header.Depth;
}

TEST(TargaPictures, OfAbsurdSizeAreRefused) {
    EXPECT_EQ(ReadTarga(Targa({.Type = 10, .Width = 65535, .Height = 65535}, BgrPixels)).Problem,
              PictureProblem::TooLarge);
    EXPECT_EQ(ReadTarga(Targa({.Type = 10, .Width = 8192, .Height = 4096}, BgrPixels)).Problem,
              PictureProblem::Damaged);
    EXPECT_EQ(ReadTarga(Targa({.Type = 2, .Width = 0}, BgrPixels)).Problem,
              PictureProblem::Damaged);
}

TEST(PcxPictures, HaveAPalette) {
    const Raster picture = ReadPcx(PalettePcx());
    EXPECT_EQ(picture.Problem, PictureProblem::None);
    EXPECT_EQ(picture.Size, QSize(3, 2));
    EXPECT_THAT(picture.Pixels, ElementsAre(Red, Red, Red, Green, Blue, White));
}

TEST(PcxPictures, AreThreePlanesOfColour) {
    const Raster picture = ReadPcx(ColorPcx());
    EXPECT_EQ(picture.Problem, PictureProblem::None);
    EXPECT_THAT(picture.Pixels, ElementsAre(Red, Green, Blue, White, White, White));
}

TEST(PcxPictures, LetARunGoOnInTheNextLine) {
    EXPECT_THAT(ReadPcx(Pcx(1, QByteArray::fromHex("c801") + PcxPalette())).Pixels, Each(Green));
}

TEST(PcxPictures, WithoutTheirPaletteAreDamaged) {
    EXPECT_EQ(ReadPcx(Pcx(1, QByteArray(2000, '\1'))).Problem, PictureProblem::Damaged);
}

TEST(PcxPictures, OfOtherKindsAreNotKnown) {
    EXPECT_EQ(ReadPcx(Pcx(4, PcxPalette())).Problem, PictureProblem::UnknownFormat);
    EXPECT_EQ(ReadPcx(QByteArray(128, 'x')).Problem, PictureProblem::UnknownFormat);
}

TEST(PcxPictures, OfAbsurdSizeAreRefused) {
    EXPECT_EQ(ReadPcx(Pcx(1, PcxPalette(), 65535, 65535)).Problem, PictureProblem::TooLarge);
    EXPECT_EQ(ReadPcx(Pcx(1, PcxPalette(), 8000, 4000)).Problem, PictureProblem::Damaged);
    EXPECT_EQ(ReadPcx(Pcx(1, PcxPalette(), 0, 4)).Problem, PictureProblem::Damaged);
}

using Reader = Raster (*)(QByteArrayView);

const std::pair<Reader, QByteArray> Files[] = {
    {ReadTarga, PlainTarga()}, {ReadTarga, PackedTarga()}, {ReadTarga, PaletteTarga()},
    {ReadPcx, PalettePcx()},   {ReadPcx, ColorPcx()},
};

bool IsComplete(const Raster &picture) {
    return picture.Pixels.size() == static_cast<std::size_t>(picture.Size.width()) *
                                        static_cast<std::size_t>(picture.Size.height());
}

TEST(DamagedPictures, CutAnywhereAreRefused) {
    for (const auto &[read, bytes] : Files)
        for (qsizetype size = 0; size < bytes.size(); ++size) {
            const QByteArray cut(bytes.constData(), size); // of its own, so that overruns are found
            EXPECT_NE(read(cut).Problem, PictureProblem::None) << size;
        }
}

TEST(DamagedPictures, WithAnyByteChangedAreReadOrRefused) {
    std::mt19937 random(1);
    for (const auto &[read, bytes] : Files)
        for (int round = 0; round < 3000; ++round) {
            QByteArray changed(bytes.constData(), bytes.size());
            for (int i = 0; i < 1 + round % 3; ++i)
                changed[static_cast<qsizetype>(random() % std::min<qsizetype>(bytes.size(), 160))] =
                    static_cast<char>(random());
            const Raster picture = read(changed);
            ASSERT_TRUE(picture.Problem != PictureProblem::None || IsComplete(picture));
        }
}

} // namespace
} // namespace Quillbox
