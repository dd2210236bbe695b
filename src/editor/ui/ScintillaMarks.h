// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

namespace Quillbox {

/// Line marks of the editing component by their numbers.
namespace LineMark {
inline constexpr int Bookmark = 1;
inline constexpr int Highlight = 2;
} // namespace LineMark

/// Marks of stretches of text by their numbers; below 8 they are the component's own.
namespace Indicator {
inline constexpr int Match = 20; ///< of what is looked for
inline constexpr int BracketPair = 21;
inline constexpr int LoneBracket = 22;
} // namespace Indicator

/// The component's margins from left to right.
namespace Margin {
inline constexpr int Bookmarks = 0;
inline constexpr int LineNumbers = 1;
inline constexpr int Divider = 2;
} // namespace Margin

enum class MarkDirection { Next, Previous };

void ToggleBookmark(const ScintillaText &text);
void ClearBookmarks(const ScintillaText &text);
/// Puts the caret at the start of the line of the nearest bookmark behind (before) the caret line,
/// going on at the other end of the text.
void GoToBookmark(const ScintillaText &text, MarkDirection direction);
void GoToFirstBookmark(const ScintillaText &text);
void GoToLastBookmark(const ScintillaText &text);

/// -1 removes the tint.
void HighlightLine(const ScintillaText &text, LineIndex line);

} // namespace Quillbox
