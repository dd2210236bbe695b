// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class MainWindow;

/// Debug mode is carried as a check mark; no command line depends on it.
class DebugMode {
  public:
    explicit DebugMode(MainWindow &mainWindow);

    void mnuPrograma_ModoDebug_Click();
    bool IsOn() const { return On_; }

  private:
    MainWindow &MainWindow_;
    bool On_ = false;
};

} // namespace Quillbox
