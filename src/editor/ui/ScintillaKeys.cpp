// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaKeys.h"

#include <QKeyEvent>

namespace Quillbox {

void ClearLetterCommands(const ScintillaText &text) {
    using Sci = QsciScintillaBase;
    for (int letter = 'A'; letter <= 'Z'; ++letter) {
        text.Send(Sci::SCI_CLEARCMDKEY, letter | (Sci::SCMOD_CTRL << 16));
        text.Send(Sci::SCI_CLEARCMDKEY, letter | ((Sci::SCMOD_CTRL | Sci::SCMOD_SHIFT) << 16));
    }
}

int ControlCharacterOf(const QKeyEvent &event) {
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    if (!letter || event.modifiers() != Qt::ControlModifier)
        return 0;
    return event.key() - Qt::Key_A + 1;
}

int WindowsKeyCodeOf(const QKeyEvent &event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Delete:
        return 46;
    default:
        break;
    }
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    const bool digit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
    return letter || digit ? event.key() : 0;
}

} // namespace Quillbox
