// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/Targa.h"

namespace Quillbox {
namespace {

enum class Coding { Palette = 1, Color = 2, Grey = 3 };

/// The beginning of the file, field by field.
struct Header {
    unsigned IdLength = 0;
    unsigned Type = 0;
    unsigned PaletteFirst = 0;
    unsigned PaletteCount = 0;
    unsigned PaletteDepth = 0;
    unsigned Width = 0;
    unsigned Height = 0;
    unsigned Depth = 0; ///< bits of a pixel
    unsigned Descriptor = 0;

    Coding Kind() const { return static_cast<Coding>(Type & 7U); }
    bool IsPacked() const { return (Type & 8U) != 0; }
    unsigned PixelBytes() const { return (Depth + 7) / 8; }
    qint64 PixelCount() const { return qint64{Width} * Height; }
    bool HasAlpha() const { return (Descriptor & 0x0FU) != 0; }
    bool StartsAtRight() const { return (Descriptor & 0x10U) != 0; }
    bool StartsAtTop() const { return (Descriptor & 0x20U) != 0; }
};

Header ReadHeader(ByteReader &bytes) {
    Header header;
    header.IdLength = bytes.Byte();
    const bool hasPalette = bytes.Byte() != 0;
    header.Type = bytes.Byte();
    header.PaletteFirst = bytes.Word();
    header.PaletteCount = bytes.Word();
    if (!hasPalette)
        header.PaletteCount = 0; // some programs leave a number there
    header.PaletteDepth = bytes.Byte();
    bytes.Skip(4);
    header.Width = bytes.Word();
    header.Height = bytes.Word();
    header.Depth = bytes.Byte();
    header.Descriptor = bytes.Byte();
    return header;
}

bool IsColorDepth(unsigned depth) {
    return depth == 15 || depth == 16 || depth == 24 || depth == 32;
}

bool IsKnown(const Header &header) {
    if ((header.Type & ~0x0BU) != 0)
        return false;
    switch (header.Kind()) {
    case Coding::Palette:
        return header.Depth == 8 && header.PaletteCount > 0 && IsColorDepth(header.PaletteDepth);
    case Coding::Color:
        return IsColorDepth(header.Depth);
    case Coding::Grey:
        return header.Depth == 8;
    }
    return false;
}

/// A run of 128 pixels is the most that one byte and a pixel can stand for.
bool CanHoldItsPixels(const Header &header, const ByteReader &bytes) {
    if (!header.IsPacked())
        return bytes.Remaining() / header.PixelBytes() >= header.PixelCount();
    return (bytes.Remaining() / (1 + header.PixelBytes()) + 1) * 128 >= header.PixelCount();
}

unsigned EightBitsOf(unsigned fiveBits) { return fiveBits << 3 | fiveBits >> 2; }

/// A fourth byte is a transparency only where the header says so; else it is filling.
std::uint32_t ReadColor(ByteReader &bytes, unsigned depth, bool hasAlpha) {
    if (depth <= 16) {
        const unsigned word = bytes.Word();
        return ColorOf(EightBitsOf(word >> 10 & 31U), EightBitsOf(word >> 5 & 31U),
                       EightBitsOf(word & 31U));
    }
    const unsigned blue = bytes.Byte();
    const unsigned green = bytes.Byte();
    const unsigned red = bytes.Byte();
    const unsigned fourth = depth == 32 ? bytes.Byte() : 255;
    return (ColorOf(red, green, blue) & 0xFFFFFFU) | (hasAlpha ? fourth : 255U) << 24;
}

class PixelSource {
  public:
    PixelSource(const Header &header, ByteReader &bytes)
        : Header_(header)
        , Bytes_(bytes) {
        for (unsigned i = 0; i < header.PaletteCount && !bytes.Overrun(); ++i)
            Palette_.push_back(ReadColor(bytes, header.PaletteDepth, header.HasAlpha()));
    }

    std::uint32_t Next() {
        if (Header_.Kind() == Coding::Color)
            return ReadColor(Bytes_, Header_.Depth, Header_.HasAlpha());
        const unsigned value = Bytes_.Byte();
        if (Header_.Kind() == Coding::Grey)
            return ColorOf(value, value, value);
        const unsigned entry = value - Header_.PaletteFirst; // wraps below the first entry
        return entry < Palette_.size() ? Palette_[entry] : ColorOf(0, 0, 0);
    }

  private:
    const Header &Header_;
    ByteReader &Bytes_;
    std::vector<std::uint32_t> Palette_;
};

void ReadPacked(ByteReader &bytes, PixelSource &source, std::vector<std::uint32_t> &pixels) {
    for (std::size_t done = 0; done < pixels.size() && !bytes.Overrun();) {
        const unsigned packet = bytes.Byte();
        const bool isRun = (packet & 0x80U) != 0;
        std::size_t count = std::min<std::size_t>((packet & 0x7FU) + 1, pixels.size() - done);
        for (std::uint32_t pixel = source.Next(); count > 0; --count) {
            pixels[done++] = pixel;
            if (!isRun && count > 1)
                pixel = source.Next();
        }
    }
}

void PutTopLeftFirst(const Header &header, std::vector<std::uint32_t> &pixels) {
    const auto row = [&](unsigned y) { return pixels.begin() + std::ptrdiff_t{y} * header.Width; };
    if (!header.StartsAtTop())
        for (unsigned y = 0; y < header.Height / 2; ++y)
            std::swap_ranges(row(y), row(y + 1), row(header.Height - 1 - y));
    if (header.StartsAtRight())
        for (unsigned y = 0; y < header.Height; ++y)
            std::reverse(row(y), row(y + 1));
}

} // namespace

Raster ReadTarga(QByteArrayView data) {
    ByteReader bytes(data);
    const Header header = ReadHeader(bytes);
    if (const auto problem = HeaderProblem(bytes, IsKnown(header), header.PixelCount());
        problem != PictureProblem::None)
        return {problem, {}, {}};
    bytes.Skip(header.IdLength);
    PixelSource source(header, bytes);
    if (header.PixelCount() == 0 || bytes.Overrun() || !CanHoldItsPixels(header, bytes))
        return {PictureProblem::Damaged, {}, {}};

    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(header.PixelCount()));
    if (header.IsPacked())
        ReadPacked(bytes, source, pixels);
    else
        std::generate(pixels.begin(), pixels.end(), [&] { return source.Next(); });
    if (bytes.Overrun())
        return {PictureProblem::Damaged, {}, {}};
    PutTopLeftFirst(header, pixels);
    return {PictureProblem::None,
            QSize(static_cast<int>(header.Width), static_cast<int>(header.Height)),
            std::move(pixels)};
}

} // namespace Quillbox
