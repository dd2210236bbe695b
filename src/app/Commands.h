// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace Quillbox {

struct Rules;

/// What must be there for a command. Menus and their items are switched accordingly; a click on a
/// tool button that has no item does nothing while a project or the help page is missing.
enum class Needs { Nothing, Document, Project, HelpPage };

struct Availability {
    Quillbox::Needs Needs = Quillbox::Needs::Nothing;
    int Turn = 0; ///< the order in which those that need a document are switched
};

/// A command's button in tbEstandar.
struct ToolButton {
    int Place = 0;            ///< tens count the groups, ones the buttons of a group; 0: no button
    const char *Tooltip = ""; ///< Spanish, UTF-8; the button is known by it
    const char *Icon = "";    ///< name of the picture, without folder and extension
};

/// One thing that a person can tell the program to do, a menu of such things, or a separator.
struct Command {
    const char *Name = "";               ///< control name, UTF-8; empty for a separator
    const char *Caption = "";            ///< Spanish, UTF-8, with its mnemonic; empty: no menu item
    const char *Key = "";                ///< portable key sequence, empty for none
    void (*Run)(Rules &rules) = nullptr; ///< null for a menu and a separator
    ToolButton Button = {};
    Availability Enabled = {};

    bool IsSeparator() const { return *Name == '\0'; }
    bool IsMenu() const { return !IsSeparator() && !Run; }
    bool IsMenuItem() const { return Run && *Caption != '\0'; }
    bool IsToolButton() const { return Button.Place > 0; }
};

/// The menus in their order, each followed by its items in their order; then what has a tool button
/// only.
std::span<const Command> Commands();

} // namespace Quillbox
