// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/PictureProblem.h"

#include <QByteArrayView>
#include <QSize>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Quillbox {

/// A picture as it was read. Pixels are 0xAARRGGBB, row by row from the top left; they are complete
/// when there is no problem.
struct Raster {
    PictureProblem Problem = PictureProblem::None;
    QSize Size;
    std::vector<std::uint32_t> Pixels;
};

/// Reads numbers from bytes, low byte first. What lies behind the end reads as 0 and is remembered.
class ByteReader {
  public:
    explicit ByteReader(QByteArrayView bytes)
        : Bytes_(bytes) {}

    unsigned Byte() {
        if (Place_ >= Bytes_.size()) {
            Overrun_ = true;
            return 0;
        }
        return static_cast<unsigned char>(Bytes_[Place_++]);
    }
    unsigned Word() {
        const unsigned low = Byte();
        return low | Byte() << 8;
    }
    void Skip(qint64 count) {
        Overrun_ = Overrun_ || count > Remaining();
        Place_ += static_cast<qsizetype>(std::min<qint64>(count, Remaining()));
    }
    qint64 Remaining() const { return Bytes_.size() - Place_; }
    bool Overrun() const { return Overrun_; }

  private:
    QByteArrayView Bytes_;
    qsizetype Place_ = 0;
    bool Overrun_ = false;
};

/// What speaks against a picture before its first pixel is read.
inline PictureProblem HeaderProblem(const ByteReader &header, bool isKnown, qint64 pixelCount) {
    if (header.Overrun())
        return PictureProblem::Damaged;
    if (!isKnown)
        return PictureProblem::UnknownFormat;
    return pixelCount > LargestPicture ? PictureProblem::TooLarge : PictureProblem::None;
}

/// An opaque colour.
constexpr std::uint32_t ColorOf(unsigned red, unsigned green, unsigned blue) {
    return 0xFF000000U | red << 16 | green << 8 | blue;
}

} // namespace Quillbox
