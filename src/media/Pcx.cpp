// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/Pcx.h"

namespace Quillbox {
namespace {

constexpr qsizetype HeaderSize = 128;
constexpr unsigned FileMark = 10;
constexpr unsigned PaletteMark = 12;
constexpr qsizetype PaletteSize = 1 + 3 * 256;
constexpr unsigned RunMark = 0xC0; ///< both upper bits: the others count how often a byte follows
constexpr int LongestRun = 63;

/// The beginning of the file, field by field.
struct Header {
    unsigned Mark = 0;
    unsigned Encoding = 0;
    unsigned Bits = 0; ///< of a pixel in each plane
    int Width = 0;
    int Height = 0;
    unsigned Planes = 0;
    unsigned LineBytes = 0; ///< of a line in each plane, at least the width

    qint64 PixelCount() const { return qint64{Width} * Height; }
    qint64 ByteCount() const { return qint64{LineBytes} * Planes * Height; }
};

Header ReadHeader(ByteReader &bytes) {
    Header header;
    header.Mark = bytes.Byte();
    bytes.Skip(1);
    header.Encoding = bytes.Byte();
    header.Bits = bytes.Byte();
    const auto left = static_cast<int>(bytes.Word());
    const auto top = static_cast<int>(bytes.Word());
    header.Width = static_cast<int>(bytes.Word()) - left + 1;
    header.Height = static_cast<int>(bytes.Word()) - top + 1;
    bytes.Skip(53);
    header.Planes = bytes.Byte();
    header.LineBytes = bytes.Word();
    bytes.Skip(HeaderSize - 68);
    return header;
}

bool IsKnown(const Header &header) {
    return header.Mark == FileMark && header.Encoding == 1 && header.Bits == 8 &&
           (header.Planes == 1 || header.Planes == 3);
}

/// Two bytes stand for a run of 63 at most.
bool CanBeWhole(const Header &header, const ByteReader &bytes) {
    return header.Width > 0 && header.Height > 0 &&
           header.LineBytes >= static_cast<unsigned>(header.Width) &&
           (bytes.Remaining() / 2 + 1) * LongestRun >= header.ByteCount();
}

/// Runs are not held to end with a line: some programs let them go on.
class UnpackedBytes {
  public:
    explicit UnpackedBytes(ByteReader &bytes)
        : Bytes_(bytes) {}

    unsigned Next() {
        while (Count_ == 0 && !Bytes_.Overrun()) {
            Value_ = Bytes_.Byte();
            const bool isRun = (Value_ & RunMark) == RunMark;
            Count_ = isRun ? Value_ & ~RunMark : 1;
            if (isRun)
                Value_ = Bytes_.Byte();
        }
        if (Count_ > 0)
            --Count_;
        return Value_;
    }

  private:
    ByteReader &Bytes_;
    unsigned Value_ = 0;
    unsigned Count_ = 0;
};

/// Colours of the palette at the end of the file; empty without one.
std::vector<std::uint32_t> ReadPalette(QByteArrayView data) {
    if (data.size() < HeaderSize + PaletteSize)
        return {};
    ByteReader bytes(data.last(PaletteSize));
    if (bytes.Byte() != PaletteMark)
        return {};
    std::vector<std::uint32_t> colors(256);
    for (std::uint32_t &color : colors) {
        const unsigned red = bytes.Byte();
        const unsigned green = bytes.Byte();
        color = ColorOf(red, green, bytes.Byte());
    }
    return colors;
}

std::uint32_t PixelAt(const std::vector<unsigned char> &line, const Header &header, int x,
                      const std::vector<std::uint32_t> &palette) {
    const auto sample = [&](unsigned plane) -> unsigned {
        return line[std::size_t{plane} * header.LineBytes + static_cast<std::size_t>(x)];
    };
    return header.Planes == 1 ? palette[sample(0)] : ColorOf(sample(0), sample(1), sample(2));
}

} // namespace

Raster ReadPcx(QByteArrayView data) {
    ByteReader bytes(data);
    const Header header = ReadHeader(bytes);
    if (const auto problem = HeaderProblem(bytes, IsKnown(header), header.PixelCount());
        problem != PictureProblem::None)
        return {problem, {}, {}};
    const std::vector<std::uint32_t> palette = ReadPalette(data);
    if (!CanBeWhole(header, bytes) || (header.Planes == 1 && palette.empty()))
        return {PictureProblem::Damaged, {}, {}};

    Raster picture{PictureProblem::None, QSize(header.Width, header.Height), {}};
    picture.Pixels.reserve(static_cast<std::size_t>(header.PixelCount()));
    UnpackedBytes source(bytes);
    std::vector<unsigned char> line(std::size_t{header.LineBytes} * header.Planes);
    for (int y = 0; y < header.Height; ++y) {
        for (unsigned char &byte : line)
            byte = static_cast<unsigned char>(source.Next());
        if (bytes.Overrun())
            return {PictureProblem::Damaged, {}, {}};
        for (int x = 0; x < header.Width; ++x)
            picture.Pixels.push_back(PixelAt(line, header, x, palette));
    }
    return picture;
}

} // namespace Quillbox
