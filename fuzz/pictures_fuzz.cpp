// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a .pcx and as a .tga file: a picture has all of its pixels or a problem; what
// follows the pixels of a .tga file changes nothing, and its rows may come in either order.
#include "Fuzz.h"

#include "media/Pcx.h"
#include "media/Targa.h"

using namespace Quillbox;

namespace {

void CheckPicture(const Raster &picture) {
    const qint64 pixels = qint64{picture.Size.width()} * picture.Size.height();
    if (picture.Problem == PictureProblem::None)
        Require(picture.Size.width() > 0 && pixels > 0 && pixels <= LargestPicture &&
                static_cast<qint64>(picture.Pixels.size()) == pixels);
    else
        Require(picture.Pixels.empty());
}

void CheckFollowedTarga(const QByteArray &content, const Raster &picture) {
    const Raster followed = ReadTarga(content + "TRUEVISION");
    CheckPicture(followed);
    if (picture.Problem == PictureProblem::None)
        Require(followed.Size == picture.Size && followed.Pixels == picture.Pixels);
}

void CheckTurnedTarga(QByteArray content, const Raster &picture) {
    constexpr qsizetype Descriptor = 17;
    constexpr char StartsAtTop = 0x20;
    if (picture.Problem != PictureProblem::None)
        return;
    content[Descriptor] = static_cast<char>(content[Descriptor] ^ StartsAtTop);
    const Raster turned = ReadTarga(content);
    Require(turned.Size == picture.Size);
    const std::ptrdiff_t width = picture.Size.width();
    const auto pixels = picture.Pixels.begin();
    for (std::ptrdiff_t y = 0, last = picture.Size.height() - 1; y <= last; ++y)
        Require(std::equal(pixels + y * width, pixels + (y + 1) * width,
                           turned.Pixels.begin() + (last - y) * width));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content = BytesOf(data, size);
    CheckPicture(ReadPcx(content));
    const Raster targa = ReadTarga(content);
    CheckPicture(targa);
    CheckFollowedTarga(content, targa);
    CheckTurnedTarga(content, targa);
    return 0;
}
