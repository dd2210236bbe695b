// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Quillbox {

class EventLoop;
class MainWindow;

/// What is switched, each list in the order in which it is.
struct SwitchedCommands {
    QStringList WithDocument;        ///< menus and menu items that need an active document
    QStringList ButtonsWithDocument; ///< tooltips of the tool buttons that need one
    QStringList WithProject;         ///< menu items that need an open project
};

/// Which commands are available.
class CommandState {
  public:
    CommandState(MainWindow &mainWindow, EventLoop &events, const SwitchedCommands &commands);

    /// Enables or disables the document commands in menus and toolbar and shows that at once.
    void UpdateCommandState(bool enabled);
    /// Lets people walk from the help page to the documents.
    void EnableWindowMenu();
    /// Enables or disables the menu items that need an open project.
    void EnableProjectMenus(bool enabled);

  private:
    void EnableCommands(const QStringList &names, bool enabled);

    MainWindow &MainWindow_;
    EventLoop &Events_;
    SwitchedCommands Commands_;
};

} // namespace Quillbox
