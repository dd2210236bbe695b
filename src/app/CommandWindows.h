// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

/// The windows that commands bring up beside the main window.
class CommandWindows {
  public:
    virtual ~CommandWindows() = default;

    /// Modal: they return when the person has closed the window.
    virtual void ShowAbout() = 0;
    virtual void ShowNewProject() = 0;
    virtual void ShowSettings() = 0;
    /// Modeless: a window that is open already comes forward as it is.
    virtual void ShowProjectInfo() = 0;
    virtual void ShowToDoList() = 0;
    virtual void ShowMediaBrowser() = 0;
};

} // namespace Quillbox
