// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaZoom.h"

#include "editor/ui/ScintillaEditor.h"

#include <QKeyEvent>

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// In points more or less than the font's own size.
constexpr int Smallest = -10;
constexpr int Largest = 40;

bool IsControlOnly(Qt::KeyboardModifiers modifiers) {
    // "+" needs Shift on many keyboards.
    return (modifiers & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::ControlModifier;
}

} // namespace

ScintillaZoom::ScintillaZoom(ScintillaEditor &editor)
    : QObject(&editor)
    , Text_(editor) {
    editor.installEventFilter(this);
    editor.viewport()->installEventFilter(this);
}

bool ScintillaZoom::eventFilter(QObject *, QEvent *event) {
    if (event->type() == QEvent::KeyPress)
        return TakeKey(static_cast<const QKeyEvent &>(*event));
    if (event->type() == QEvent::Wheel)
        return TakeWheel(static_cast<const QWheelEvent &>(*event));
    return false;
}

bool ScintillaZoom::TakeKey(const QKeyEvent &key) {
    if (!IsControlOnly(key.modifiers()))
        return false;
    switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the "+" key of keyboards that have it with Shift
        ZoomBy(1);
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        ZoomBy(-1);
        return true;
    case Qt::Key_0:
        Text_.Send(Sci::SCI_SETZOOM, 0);
        return true;
    default:
        return false;
    }
}

bool ScintillaZoom::TakeWheel(const QWheelEvent &wheel) {
    if (wheel.modifiers() != Qt::ControlModifier)
        return false;
    ZoomBy(Notches_.Take(wheel.angleDelta().y()));
    return true;
}

void ScintillaZoom::ZoomBy(int points) {
    const auto now = static_cast<int>(Text_.Send(Sci::SCI_GETZOOM));
    Text_.Send(Sci::SCI_SETZOOM, std::clamp(now + points, Smallest, Largest));
}

} // namespace Quillbox
