// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a .pcx and as a .tga file: a picture has all of its pixels or a problem, and what
// follows the pixels of a .tga file changes nothing.
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content = BytesOf(data, size);
    CheckPicture(ReadPcx(content));
    const Raster targa = ReadTarga(content);
    CheckPicture(targa);
    CheckFollowedTarga(content, targa);
    return 0;
}
