// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/PictureFile.h"

#include "media/Pcx.h"
#include "media/Targa.h"
#include "platform/SaveFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

#include <cstring>

namespace Quillbox {
namespace {

/// Far more than the largest picture takes as it is usually stored.
constexpr qint64 LargestFile = qint64{256} << 20;

PictureFile Failed(PictureProblem problem) { return {problem, {}}; }

PictureFile PictureOf(const Raster &raster) {
    if (raster.Problem != PictureProblem::None)
        return Failed(raster.Problem);
    QImage image(raster.Size, QImage::Format_ARGB32);
    if (image.isNull())
        return Failed(PictureProblem::TooLarge);
    const auto width = static_cast<std::size_t>(image.width());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), raster.Pixels.data() + static_cast<std::size_t>(y) * width,
                    width * sizeof(std::uint32_t));
    const bool isOpaque = std::all_of(raster.Pixels.begin(), raster.Pixels.end(),
                                      [](std::uint32_t pixel) { return pixel >> 24 == 255; });
    return {PictureProblem::None, isOpaque ? image.convertToFormat(QImage::Format_RGB32) : image};
}

PictureFile ReadWithQt(QByteArray &bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return Failed(PictureProblem::UnknownFormat);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > LargestPicture)
        return Failed(PictureProblem::TooLarge);
    const QImage image = reader.read();
    return image.isNull() ? Failed(PictureProblem::Damaged)
                          : PictureFile{PictureProblem::None, image};
}

} // namespace

PictureFile ReadPictureFile(const QString &path) {
    if (QFileInfo(path).size() > LargestFile)
        return Failed(PictureProblem::TooLarge);
    QByteArray bytes;
    if (ReadWholeFile(path, bytes))
        return Failed(PictureProblem::Unreadable);
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QStringLiteral("tga"))
        return PictureOf(ReadTarga(bytes));
    if (ending == QStringLiteral("pcx"))
        return PictureOf(ReadPcx(bytes));
    return ReadWithQt(bytes);
}

} // namespace Quillbox
