// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

namespace Quillbox {

/// A virtual display with a window manager and a Spanish keyboard. It must be made before the
/// QGuiApplication, which then runs on it, and lasts as long as the process.
class Desktop {
  public:
    /// `scale` is the factor for programs started on it: 1 for 100 %, 2 for 200 %.
    explicit Desktop(int scale = 1);
    ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    bool IsRunning() const { return Running_; }

  private:
    bool StartDisplay(int scale);
    bool StartWindowManager();

    QProcess Display_;
    QProcess WindowManager_;
    bool Running_ = false;
};

} // namespace Quillbox
