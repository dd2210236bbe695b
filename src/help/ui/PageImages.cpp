// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/PageImages.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QTextDocument>
#include <QUrl>

namespace Quillbox {
namespace {

constexpr QSizeF MissingPictureSize(120, 40);

QImage ImageOf(const QTextImageFormat &format, const QTextDocument &document) {
    return document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
}

/// Width and height as the page gives them; one that it leaves out follows the other.
QSizeF SizeAsked(const QTextImageFormat &format, QSizeF natural) {
    QSizeF size = natural;
    if (format.hasProperty(QTextFormat::ImageWidth)) {
        size.setWidth(format.width());
        if (natural.width() > 0)
            size.setHeight(natural.height() * format.width() / natural.width());
    }
    if (format.hasProperty(QTextFormat::ImageHeight)) {
        if (!format.hasProperty(QTextFormat::ImageWidth) && natural.height() > 0)
            size.setWidth(natural.width() * format.height() / natural.height());
        size.setHeight(format.height());
    }
    return size;
}

} // namespace

QSizeF PageImages::SizeOf(const QTextImageFormat &format, const QTextDocument &document) const {
    const QImage image = ImageOf(format, document);
    const QSizeF natural = image.isNull() ? MissingPictureSize : image.deviceIndependentSize();
    QSizeF size = SizeAsked(format, natural) * Zoom;
    const double room = document.textWidth() - 2 * document.documentMargin();
    if (room > 0 && size.width() > room)
        size.scale(room, size.height(), Qt::KeepAspectRatio);
    return size;
}

QSizeF PageImages::intrinsicSize(QTextDocument *document, int, const QTextFormat &format) {
    return SizeOf(format.toImageFormat(), *document);
}

void PageImages::drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int,
                            const QTextFormat &format) {
    const QTextImageFormat imageFormat = format.toImageFormat();
    const QImage image = ImageOf(imageFormat, *document);
    if (!image.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(area, image);
        return;
    }
    painter->setPen(QPen(Qt::gray, 1, Qt::DashLine));
    painter->drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
    const QString text = imageFormat.property(QTextFormat::ImageAltText).toString();
    painter->drawText(area.adjusted(4, 2, -4, -2), Qt::AlignCenter | Qt::TextWordWrap,
                      text.isEmpty() ? QStringLiteral("Imagen no disponible") : text);
}

QImage ReadPicture(const QByteArray &bytes, double pixelRatio) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const bool isDrawing = reader.format().startsWith("svg");
    if (isDrawing)
        reader.setScaledSize((QSizeF(reader.size()) * pixelRatio).toSize());
    QImage image = reader.read();
    if (isDrawing)
        image.setDevicePixelRatio(pixelRatio);
    return image;
}

} // namespace Quillbox
