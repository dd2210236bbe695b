// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindPlace.h"

#include "editor/ui/ScintillaText.h"

#include <QScreen>
#include <QWidget>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

constexpr int Distance = 12;

QRect OnScreen(const QWidget &widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }

/// The lines of the selection from its leftmost to its rightmost place; screen coordinates.
QRect SelectionOnScreen(const Sci &editor) {
    const ScintillaText text(editor);
    const QPoint start = text.PointAt(text.SelectionStart());
    const QPoint end = text.PointAt(text.SelectionEnd());
    const auto height = static_cast<int>(text.Send(Sci::SCI_TEXTHEIGHT, 0));
    const QRect lines(QPoint(std::min(start.x(), end.x()), start.y()),
                      QPoint(std::max(start.x(), end.x()), end.y() + height));
    const QRect shown = lines.intersected(editor.viewport()->rect());
    return shown.translated(editor.viewport()->mapToGlobal(QPoint(0, 0)));
}

} // namespace

void PlaceOverCorner(QWidget &dialog, const Sci &editor) {
    const QRect view = OnScreen(*editor.viewport());
    const QRect screen = editor.screen()->availableGeometry();
    const QSize size = dialog.sizeHint();
    const int left = view.right() - size.width() - Distance;
    dialog.move(std::max(left, screen.left()), std::max(view.top() + Distance, screen.top()));
}

void UncoverSelection(QWidget &dialog, const Sci &editor) {
    const QRect frame = dialog.frameGeometry();
    const QRect match = SelectionOnScreen(editor);
    const QRect spared = match.adjusted(-Distance, -Distance, Distance, Distance);
    if (!frame.intersects(match))
        return;
    const QRect screen = dialog.screen()->availableGeometry();
    for (const QPoint place :
         {QPoint(frame.left(), spared.bottom()),
          QPoint(frame.left(), spared.top() - frame.height()), QPoint(spared.right(), frame.top()),
          QPoint(spared.left() - frame.width(), frame.top())})
        if (screen.contains(QRect(place, frame.size())))
            return dialog.move(place);
}

} // namespace Quillbox
