// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWheelEvent>

namespace Quillbox {

/// Counts the notches of a wheel. Touchpads and fine wheels report many small turns, which are no
/// notch each but add up to one.
class WheelNotches {
  public:
    /// `angle` in eighths of a degree, as the wheel event tells it. The whole notches turned since
    /// the last call, negative towards the person; what is left counts in the next call.
    int Take(int angle) {
        Turned_ += angle;
        const int notches = Turned_ / Notch;
        Turned_ %= Notch;
        return notches;
    }

  private:
    static constexpr int Notch = QWheelEvent::DefaultDeltasPerStep;
    int Turned_ = 0;
};

} // namespace Quillbox
