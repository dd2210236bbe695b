// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ProgramWindows.h"
#include "app/Outside.h"
#include "app/Rules.h"
#include "app/ShutDown.h"
#include "app/Toolbar.h"
#include "app/ui/frmMain.h"
#include "widgets/EventBoundary.h"

#include <memory>

namespace Quillbox {

/// The whole program: the main window, the other windows and the rules behind them. Nothing is
/// decided here.
class Program {
  public:
    explicit Program(const Outside &outside);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Runs the start-up and shows the main window. A run-time error means that the program ends.
    void Start();

    frmMain &Main() { return *MainWindow_; }
    DocumentRegistry &Registry() { return Rules_.Registry; }
    Project &OpenProject() { return Rules_.Project; }
    Settings &Options() { return Rules_.Settings; }

  private:
    MainSurfaces MainWindowSurfaces();
    void FillEvents();

    Outside Outside_;
    EventBoundary Boundary_;
    MainWindowEvents Events_;
    std::unique_ptr<frmMain> MainWindow_; ///< goes first, while its rules are still there
    ProgramWindows Windows_;
    Rules Rules_;
    ToolbarDispatch Toolbar_;
    ShutDown ShutDown_;
};

} // namespace Quillbox
