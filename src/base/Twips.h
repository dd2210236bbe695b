// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

/// Measures of windows are in twips, 1/1440 inch, so that they suit every screen.
constexpr int PixelsOfTwips(int twips, int dotsPerInch) {
    constexpr int PerInch = 1440;
    return (twips * dotsPerInch + PerInch / 2) / PerInch;
}

/// What the frame of a window takes of its width.
inline constexpr int FrameWidthTwips = 115;

} // namespace Quillbox
