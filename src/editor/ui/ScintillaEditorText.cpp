// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaCarets.h"
#include "editor/ui/ScintillaEditor.h"
#include "editor/ui/ScintillaMarks.h"
#include "language/ColouringTokens.h"

#include <algorithm>

namespace Quillbox {

namespace {

std::string_view ViewOf(const QByteArray &bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

int ScintillaEditor::LineCount() const { return Text_.LineCount(); }

QString ScintillaEditor::LineText(LineIndex line) const { return FromUtf8(Text_.LineBytes(line)); }

void ScintillaEditor::VisitLines(const LineVisitor &visit) const {
    const std::string_view text = Text_.Bytes(0, Text_.Length());
    const auto feedFrom = [&](std::size_t start) {
        return std::min(text.find('\n', start), text.size());
    };
    std::size_t feed = feedFrom(0);
    std::size_t start = 0;
    for (int line = 0;; ++line) {
        // Found once for all lines before it: some texts have carriage returns only.
        if (feed < start)
            feed = feedFrom(start);
        const std::string_view upToFeed = text.substr(start, feed - start);
        const std::size_t end = start + std::min(upToFeed.find('\r'), upToFeed.size());
        if (!visit({line}, text.substr(start, end - start)) || end == text.size())
            return;
        start = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
}

void ScintillaEditor::SetLinePosition(LineIndex line) { Text_.MoveCaret(Text_.LineStart(line)); }

QString ScintillaEditor::CurrentWord() const {
    const LineIndex line = Text_.LineOf(Text_.Caret());
    const std::string_view bytes = Text_.LineBytes(line);
    const WordExtent word = WordTouching(bytes, CaretInLine(line));
    return FromUtf8(bytes.substr(word.Start, word.Length));
}

TokenClass ScintillaEditor::CurrentTokenClass() const {
    const LineIndex line = Text_.LineOf(Text_.Caret());
    const BytePosition start = Text_.LineStart(line);
    Colouring_.ColourUpTo(Text_.NextLineStart(line));
    return TokenClassTouching(
        Text_.LineBytes(line), CaretInLine(line), [this, start](std::size_t offset) {
            return Colouring_.StyleAt(start + static_cast<BytePosition>(offset));
        });
}

std::size_t ScintillaEditor::CaretInLine(LineIndex line) const {
    const BytePosition caret = std::min(Text_.Caret(), Text_.LineEnd(line));
    return static_cast<std::size_t>(caret - Text_.LineStart(line));
}

TextRange ScintillaEditor::GetSel() const {
    const BytePosition start = Text_.SelectionStart();
    const BytePosition end = Text_.SelectionEnd();
    const TextPosition startPosition = Text_.PositionAt(start);
    return {startPosition, start == end ? startPosition : Text_.PositionAt(end)};
}

void ScintillaEditor::DeleteSel() {
    if (HasSelection(Text_))
        Perform([this] { Text_.Send(SCI_CLEAR); });
}

QString ScintillaEditor::Text() const { return FromUtf8(Text_.Bytes(0, Text_.Length())); }

void ScintillaEditor::SetHighlightedLine(LineIndex line) {
    LineIsHighlighted_ = line.Value >= 0;
    HighlightLine(Text_, line);
}

void ScintillaEditor::SetTopIndex(LineIndex line) {
    Text_.Send(SCI_SETFIRSTVISIBLELINE, Text_.NearestLine(line).Value);
}

void ScintillaEditor::SetCaretPos(TextPosition position) {
    Text_.MoveCaret(Text_.PositionOf(position));
}

void ScintillaEditor::InsertText(const QString &text, TextPosition position) {
    const QByteArray bytes = EditorBytes(text);
    const BytePosition place = Text_.PositionOf(position);
    const bool atCaret = place == Text_.SelectionStart() && place == Text_.SelectionEnd();
    Perform([&] {
        Text_.Replace(place, place, ViewOf(bytes));
        if (atCaret)
            Text_.Send(SCI_SETEMPTYSELECTION, place + bytes.size());
    });
}

void ScintillaEditor::AsOneUndoStep(const std::function<void()> &edits) {
    Perform([&] {
        const UndoStep step(Text_);
        edits();
    });
}

void ScintillaEditor::ReplaceSel(const QString &text) {
    const QByteArray bytes = EditorBytes(text);
    Perform([&] {
        if (CaretCount(Text_) == 1)
            return ReplaceSelection(ViewOf(bytes));
        ReplaceSelections(
            Text_, [&](const CaretPlace &caret) { return caret.Blanks + bytes.toStdString(); });
    });
}

/// As one undo step, with the caret behind the replacement.
void ScintillaEditor::ReplaceSelection(std::string_view utf8) {
    const UndoStep step(Text_);
    if (Text_.SelectionStart() != Text_.SelectionEnd())
        Text_.Send(SCI_CLEAR);
    const BytePosition place = Text_.Caret();
    Text_.Replace(place, place, utf8);
    Text_.MoveCaret(place + static_cast<BytePosition>(utf8.size()));
}

} // namespace Quillbox
