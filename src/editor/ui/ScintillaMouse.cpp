// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaMouse.h"

#include "editor/ui/ScintillaEditor.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// The caret at `position`, -1 when there is none.
int FindCaret(const ScintillaText &text, BytePosition position) {
    const std::intptr_t count = text.Send(Sci::SCI_GETSELECTIONS);
    for (int number = 0; number < count; ++number)
        if (text.Send(Sci::SCI_GETSELECTIONNCARET, number) == position)
            return number;
    return -1;
}

} // namespace

ScintillaMouse::ScintillaMouse(ScintillaEditor &editor)
    : QObject(&editor)
    , Editor_(editor)
    , Text_(editor) {
    editor.viewport()->installEventFilter(this);
}

bool ScintillaMouse::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return !SelectingColumn_ && Take(static_cast<const QMouseEvent &>(*event));
    default:
        return false;
    }
}

bool ScintillaMouse::Take(const QMouseEvent &mouse) {
    const bool isPress = mouse.button() == Qt::LeftButton && mouse.type() != QEvent::MouseMove &&
                         mouse.type() != QEvent::MouseButtonRelease;
    if (isPress && mouse.modifiers() == Qt::ControlModifier) {
        Adding_ = true;
        Editor_.setFocus(Qt::MouseFocusReason);
        AddCaret(PositionAt(mouse));
        return true;
    }
    if (Adding_ && mouse.type() == QEvent::MouseMove) {
        const std::intptr_t main = Text_.Send(Sci::SCI_GETMAINSELECTION);
        Text_.Send(Sci::SCI_SETSELECTIONNCARET, main, PositionAt(mouse));
        return true;
    }
    if (mouse.type() == QEvent::MouseButtonRelease && std::exchange(Adding_, false))
        return false;
    if ((mouse.modifiers() & ~Qt::ShiftModifier) != Qt::AltModifier)
        return false;
    SelectColumn(mouse);
    return true;
}

/// A caret that is there already goes, unless it is the only one.
void ScintillaMouse::AddCaret(BytePosition position) {
    const int there = FindCaret(Text_, position);
    if (there < 0)
        Text_.Send(Sci::SCI_ADDSELECTION, position, position);
    else if (Text_.Send(Sci::SCI_GETSELECTIONS) > 1)
        Text_.Send(Sci::SCI_DROPSELECTIONN, there);
}

BytePosition ScintillaMouse::PositionAt(const QMouseEvent &mouse) const {
    const QPoint point = mouse.position().toPoint();
    return Text_.Send(Sci::SCI_POSITIONFROMPOINT, point.x(), point.y());
}

void ScintillaMouse::SelectColumn(const QMouseEvent &mouse) {
    QMouseEvent column(mouse.type(), mouse.position(), mouse.globalPosition(), mouse.button(),
                       mouse.buttons(), Qt::ControlModifier);
    SelectingColumn_ = true;
    QCoreApplication::sendEvent(Editor_.viewport(), &column);
    SelectingColumn_ = false;
}

} // namespace Quillbox
