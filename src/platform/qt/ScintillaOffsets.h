// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/ScintillaText.h"

namespace Quillbox {

/// The way from byte positions to places counted in characters from the start of the text, as
/// assistive tools count, line ends included, and back. Keeps an index by lines, which the editing
/// component follows up, so that a long text is counted only once.
class ScintillaOffsets {
  public:
    explicit ScintillaOffsets(const ScintillaText &text)
        : Text_(text) {}

    int OffsetOf(BytePosition position) const;
    /// An offset outside the text means its nearest end.
    BytePosition PositionOf(int offset) const;
    int Count() const { return OffsetOf(Text_.Length()); }

  private:
    void PrepareIndex() const;

    const ScintillaText &Text_;
};

} // namespace Quillbox
