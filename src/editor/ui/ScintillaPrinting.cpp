// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaPrinting.h"

#include "editor/ui/ScintillaEditor.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QScreen>

#include <algorithm>

namespace Quillbox {

namespace {

/// A page of A4 and the tools above it, on a screen that has room for them.
constexpr QSize PreviewSize(860, 900);

bool IsPreview(const QPrinter &printer) {
    return printer.paintEngine()->type() == QPaintEngine::Picture;
}

} // namespace

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
        const QString page = QStringLiteral("Página %1").arg(pageNumber);
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

void ShowPrintPreview(ScintillaEditor &editor, const QString &fileName) {
    EditorPrinter printer(fileName);
    QPrintPreviewDialog preview(&printer, editor.window());
    preview.setObjectName(QStringLiteral("frmVistaPrevia"));
    preview.setWindowTitle(QStringLiteral("Imprimir %1").arg(fileName));
    preview.resize(PreviewSize.boundedTo(editor.screen()->availableSize() * 0.9));
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &editor, [&] {
        editor.PrintOn(printer, IsPreview(printer) ? MostPreviewLines : editor.LineCount());
    });
    preview.exec();
}

} // namespace Quillbox
