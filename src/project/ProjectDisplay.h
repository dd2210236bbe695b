// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class CommandState;
class MainWindow;

/// How the main window shows which project is open.
class ProjectDisplay {
  public:
    ProjectDisplay(MainWindow &mainWindow, CommandState &commandState);

    void ShowTitle(const QString &title);
    void EnableMenus();
    /// Neither a title nor the menu items that need a project.
    void ShowNone();

  private:
    MainWindow &MainWindow_;
    CommandState &CommandState_;
};

} // namespace Quillbox
