// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <span>

#include <QString>

namespace Quillbox {

/// One entry of the menu bar. An entry without a menu is a menu itself; a caption "-" is a
/// separator.
struct MenuEntry {
    const char *Menu;     ///< control name of the menu that holds it; empty for a menu
    const char *Name;     ///< control name; empty for a separator
    const char *Caption;  ///< Spanish, UTF-8, with its mnemonic
    const char *Shortcut; ///< portable key sequence, empty for none
};

/// Menus and items in their order.
std::span<const MenuEntry> MenuEntries();

/// What the menu items do, by control name. An item without a command is shown but disabled.
using CommandTable = std::map<QString, std::function<void()>>;

} // namespace Quillbox
