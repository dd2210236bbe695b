// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaPrinting.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace Quillbox {

EditorPrinter::EditorPrinter(const QString &fileName)
    : QsciPrinter(QPrinter::ScreenResolution)
    , FileName_(fileName) {
    setDocName(fileName);
}

void EditorPrinter::formatPage(QPainter &painter, bool drawing, QRect &area, int pageNumber) {
    const QFontMetrics metrics(QFont(), this);
    const int headerHeight = metrics.height();
    if (drawing) {
        PageCount_ = std::max(PageCount_, pageNumber);
        const QString page =
            QCoreApplication::translate("EditorPrinter", "Página %1").arg(pageNumber);
        const QRect header(area.left(), area.top(), area.width(), headerHeight);
        const int nameWidth = header.width() - metrics.horizontalAdvance(page) - headerHeight;
        painter.setFont(QFont());
        painter.setPen(Qt::black);
        painter.drawText(header, Qt::AlignLeft,
                         metrics.elidedText(FileName_, Qt::ElideMiddle, nameWidth));
        painter.drawText(header, Qt::AlignRight, page);
        painter.drawLine(header.left(), header.bottom() + 2, header.right(), header.bottom() + 2);
    }
    area.setTop(area.top() + headerHeight * 2);
}

} // namespace Quillbox
