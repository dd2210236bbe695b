// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Splash.h"

#include <QTimer>
#include <QWidget>

namespace Quillbox {

/// The splash window.
class frmLogo final : public QWidget {
    Q_OBJECT
  public:
    /// `showMainWindow` runs on the timer's first tick. What it throws ends the program.
    frmLogo(std::function<void()> showMainWindow, EventLoop &events);

  private:
    Splash Splash_;
    QTimer tmrTimer;
};

} // namespace Quillbox
