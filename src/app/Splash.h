// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace Quillbox {

class EventLoop;

/// How long the splash waits before each of its two steps.
inline constexpr int SplashMilliseconds = 1500;

/// The splash window hands over to the main window: on the first tick of its timer the main window
/// comes up behind it, on the next tick the splash goes.
struct Splash {
    std::function<void()> ShowMainWindow; ///< runs the whole start-up
    std::function<void()> ShowSplash;     ///< in front of the main window
    std::function<void()> CloseSplash;
    EventLoop &Events;
    bool MainShown = false;

    void tmrTimer_Timer();
};

} // namespace Quillbox
