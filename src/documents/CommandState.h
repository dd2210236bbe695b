// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class EventLoop;
class MainWindow;

/// Which commands are available, by whether a document is active.
class CommandState {
  public:
    CommandState(MainWindow &mainWindow, EventLoop &eventLoop);

    /// Enables or disables the document commands in menus and toolbar and shows that at once.
    void UpdateCommandState(bool enabled);
    /// Lets people walk from the help page to the documents.
    void EnableWindowMenu();

  private:
    MainWindow &MainWindow_;
    EventLoop &EventLoop_;
};

} // namespace Quillbox
