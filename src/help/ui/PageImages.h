// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTextObjectInterface>

class QTextImageFormat;

namespace Quillbox {

/// Shows the pictures of help pages: smoothly at every size, as large as the page's zoom makes
/// them, and never wider than the page. In the place of a picture that is not there stands its
/// text.
class PageImages final : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
  public:
    using QObject::QObject;

    double Zoom = 1;

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                    const QTextFormat &format) override;

  private:
    QSizeF SizeOf(const QTextImageFormat &format, const QTextDocument &document) const;
};

/// A picture file as an image whose size is that of the file in device-independent pixels; drawings
/// are rendered for a screen with `pixelRatio` device pixels each way. Null when it cannot be read.
QImage ReadPicture(const QByteArray &bytes, double pixelRatio);

} // namespace Quillbox
