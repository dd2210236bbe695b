// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "EditorFixture.h"

#include <QKeyEvent>

namespace Quillbox {

/// An editor that a person uses by keys.
class EditorKeys : public EditorTest {
  protected:
    bool Press(int key, const QString &text = {},
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(Editor.get(), &press);
        return press.isAccepted();
    }
    void TypeKeys(const QString &text) {
        for (const QChar character : text)
            Press(character.toUpper().unicode(), character);
    }
    std::intptr_t Ask(unsigned message, std::intptr_t first = 0, std::intptr_t second = 0) const {
        return ScintillaText(*Editor).Send(message, first, second);
    }
};

} // namespace Quillbox
