// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace Quillbox {

/// How far a text that is being edited is coloured. Positions are bytes.
///
/// After an edit the text behind it keeps the colours that it had, and mostly they are still right:
/// as soon as a line behind all edits starts in the same state as before, everything up to
/// `OldEnd` is. That is how an edit at the top of a long text costs a few lines and no more.
struct ColouringExtent {
    std::int64_t ValidEnd = 0; ///< colours are right before this position
    std::int64_t ChangedEnd =
        0;                     ///< nothing behind this was edited or coloured since OldEnd was set
    std::int64_t OldEnd = 0;   ///< from ChangedEnd up to here the colours of before are kept
    std::int64_t StaleEnd = 0; ///< before this, user words may show as they were before

    void Insert(std::int64_t position, std::int64_t length);
    void Delete(std::int64_t position, std::int64_t length);
    /// Colours are right up to `position` from now on.
    void Advance(std::int64_t position);
    /// True when colours are right up to OldEnd, provided that the line that starts at `lineStart`
    /// starts in the state that it had before.
    bool MayJump(std::int64_t lineStart) const;
    void Jump();
    /// Nothing from `position` on is right any more.
    void InvalidateFrom(std::int64_t position);
    /// User words changed: from `shownStart`, a line start, everything is to be coloured again,
    /// what lies before it only when it comes into view.
    void InvalidateUserWords(std::int64_t shownStart);
    /// Text from `shownStart`, a line start, comes into view; colours that show old user words are
    /// no longer right.
    void Show(std::int64_t shownStart);
};

} // namespace Quillbox
