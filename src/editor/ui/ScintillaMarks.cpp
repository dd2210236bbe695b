// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaMarks.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

constexpr int BookmarkMask = 1 << LineMark::Bookmark;

/// -1 when there is none from `line` on in that direction.
std::intptr_t FindBookmark(const ScintillaText &text, MarkDirection direction, int line) {
    const unsigned message =
        direction == MarkDirection::Next ? Sci::SCI_MARKERNEXT : Sci::SCI_MARKERPREVIOUS;
    return text.Send(message, line, BookmarkMask);
}

bool GoTo(const ScintillaText &text, std::intptr_t line) {
    if (line < 0)
        return false;
    text.MoveCaret(text.LineStart({static_cast<int>(line)}));
    return true;
}

} // namespace

void ToggleBookmark(const ScintillaText &text) {
    const int line = text.LineOf(text.Caret()).Value;
    const bool marked = (text.Send(Sci::SCI_MARKERGET, line) & BookmarkMask) != 0;
    text.Send(marked ? Sci::SCI_MARKERDELETE : Sci::SCI_MARKERADD, line, LineMark::Bookmark);
}

void ClearBookmarks(const ScintillaText &text) {
    text.Send(Sci::SCI_MARKERDELETEALL, LineMark::Bookmark);
}

void GoToBookmark(const ScintillaText &text, MarkDirection direction) {
    const int line = text.LineOf(text.Caret()).Value;
    if (direction == MarkDirection::Next) {
        if (!GoTo(text, FindBookmark(text, direction, line + 1)))
            GoToFirstBookmark(text);
    } else if (line == 0 || !GoTo(text, FindBookmark(text, direction, line - 1))) {
        GoToLastBookmark(text);
    }
}

void GoToFirstBookmark(const ScintillaText &text) {
    GoTo(text, FindBookmark(text, MarkDirection::Next, 0));
}

void GoToLastBookmark(const ScintillaText &text) {
    GoTo(text, FindBookmark(text, MarkDirection::Previous, text.LineCount() - 1));
}

void HighlightLine(const ScintillaText &text, LineIndex line) {
    text.Send(Sci::SCI_MARKERDELETEALL, LineMark::Highlight);
    if (line.Value >= 0)
        text.Send(Sci::SCI_MARKERADD, text.NearestLine(line).Value, LineMark::Highlight);
}

} // namespace Quillbox
