// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "XDisplay.h"

#include <QString>

#include <map>
#include <vector>

namespace Quillbox {

/// The keys of the display, as they are laid out on it.
class XKeyboard {
  public:
    explicit XKeyboard(XDisplay &display);

    /// Presses a key with its modifiers: "ctrl+o", "shift+Tab", "ñ".
    void Press(const QString &key);
    /// Presses the keys that give this character, a dead key first where it takes one; false for
    /// one that is not on the keyboard.
    bool Type(QChar character);

  private:
    /// A key and those that are held meanwhile.
    struct Stroke {
        std::uint8_t Key = 0;
        std::vector<std::uint8_t> Held;
    };
    using Symbol = std::uint32_t;

    bool Has(Symbol symbol) const { return Strokes_.count(symbol) == 1; }
    std::uint8_t KeyOf(Symbol symbol) const;
    void Do(const Stroke &stroke);

    XDisplay &Display_;
    std::map<Symbol, Stroke> Strokes_;
};

} // namespace Quillbox
