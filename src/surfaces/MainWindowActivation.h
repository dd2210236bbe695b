// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class EventLoop;
class MainWindow;

/// How another window of the program hands over to the main window.
class MainWindowActivation {
  public:
    MainWindowActivation(MainWindow &mainWindow, EventLoop &events);

    /// Brings the main window forward with the keyboard and lets that show before it returns.
    void Activate();

  private:
    MainWindow &MainWindow_;
    EventLoop &Events_;
};

} // namespace Quillbox
