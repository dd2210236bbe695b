// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/AccessibleEditor.h"

#include "editor/ui/ScintillaEditor.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Characters on either side of an offset in which words and lines are looked for.
constexpr int MostAround = 20'000;

} // namespace

/// A stretch of the text, in which Qt finds words, sentences and lines.
struct AccessibleEditor::Around final : QAccessibleTextInterface {
    QString Text;
    int First = 0; ///< the offset of its first character

    Around(QString text, int first)
        : Text(std::move(text))
        , First(first) {}

    /// `find` is one of the inherited functions that find a text near an offset.
    template <typename Find>
    QString Look(Find find, int offset, QAccessible::TextBoundaryType boundary, int *start,
                 int *end) const {
        const QString found = (this->*find)(offset - First, boundary, start, end);
        *start += *start >= 0 ? First : 0;
        *end += *end >= 0 ? First : 0;
        return found;
    }

    QString text(int start, int end) const override { return Text.mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(Text.size()); }
    int cursorPosition() const override { return 0; }
    int selectionCount() const override { return 0; }
    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int *, int *) const override { return {}; }
};

AccessibleEditor::AccessibleEditor(ScintillaEditor &editor, ScintillaOffsets &offsets)
    : QAccessibleWidget(&editor, QAccessible::EditableText)
    , Editor_(editor)
    , Text_(editor)
    , Offsets_(offsets) {}

void *AccessibleEditor::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleEditor::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void AccessibleEditor::selection(int, int *start, int *end) const {
    *start = Offsets_.OffsetOf(Text_.SelectionStart());
    *end = Offsets_.OffsetOf(Text_.SelectionEnd());
}

int AccessibleEditor::selectionCount() const {
    return Text_.SelectionStart() == Text_.SelectionEnd() ? 0 : 1;
}

void AccessibleEditor::addSelection(int start, int end) { Select(start, end); }

void AccessibleEditor::removeSelection(int) {
    Text_.Send(Sci::SCI_SETEMPTYSELECTION, Text_.Caret());
}

void AccessibleEditor::setSelection(int, int start, int end) { Select(start, end); }

int AccessibleEditor::cursorPosition() const { return Offsets_.OffsetOf(Text_.Caret()); }

void AccessibleEditor::setCursorPosition(int offset) {
    Text_.MoveCaret(Offsets_.PositionOf(offset));
}

QString AccessibleEditor::text(int start, int end) const {
    const std::string_view bytes =
        Text_.Bytes(Offsets_.PositionOf(start), Offsets_.PositionOf(end));
    return FromUtf8(bytes);
}

QString AccessibleEditor::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                           int *start, int *end) const {
    return LinesAround(offset).Look(&QAccessibleTextInterface::textBeforeOffset, offset, boundary,
                                    start, end);
}

QString AccessibleEditor::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                          int *start, int *end) const {
    return LinesAround(offset).Look(&QAccessibleTextInterface::textAfterOffset, offset, boundary,
                                    start, end);
}

QString AccessibleEditor::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                       int *start, int *end) const {
    return LinesAround(offset).Look(&QAccessibleTextInterface::textAtOffset, offset, boundary,
                                    start, end);
}

int AccessibleEditor::characterCount() const { return Offsets_.Count(); }

QRect AccessibleEditor::characterRect(int offset) const {
    const BytePosition position = Offsets_.PositionOf(offset);
    const QPoint left = Text_.PointAt(position);
    const QPoint right = Text_.PointAt(Text_.Send(Sci::SCI_POSITIONAFTER, position));
    const auto height = static_cast<int>(Text_.Send(Sci::SCI_TEXTHEIGHT));
    const int width = right.y() == left.y() ? std::max(1, right.x() - left.x()) : 1;
    return {Editor_.viewport()->mapToGlobal(left), QSize(width, height)};
}

int AccessibleEditor::offsetAtPoint(const QPoint &point) const {
    const QPoint inside = Editor_.viewport()->mapFromGlobal(point);
    const BytePosition position =
        Text_.Send(Sci::SCI_POSITIONFROMPOINTCLOSE, inside.x(), inside.y());
    return position < 0 ? -1 : Offsets_.OffsetOf(position);
}

void AccessibleEditor::scrollToSubstring(int start, int end) {
    Text_.Send(Sci::SCI_SCROLLRANGE, Offsets_.PositionOf(end), Offsets_.PositionOf(start));
}

/// All of the text counts as one run: its colours say nothing that the words do not.
QString AccessibleEditor::attributes(int, int *start, int *end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleEditor::deleteText(int start, int end) { replaceText(start, end, {}); }

void AccessibleEditor::insertText(int offset, const QString &text) {
    replaceText(offset, offset, text);
}

void AccessibleEditor::replaceText(int start, int end, const QString &text) {
    Select(start, end);
    Editor_.ReplaceSel(text);
}

/// The line at `offset` with its neighbours.
AccessibleEditor::Around AccessibleEditor::LinesAround(int offset) const {
    const LineIndex line = Text_.LineOf(Offsets_.PositionOf(offset));
    const int first = Offsets_.OffsetOf(Text_.LineStart({line.Value - 1}));
    const int last = Offsets_.OffsetOf(Text_.NextLineStart({line.Value + 1}));
    const int from = std::max(first, offset - MostAround);
    return {text(from, std::min(last, offset + MostAround)), from};
}

void AccessibleEditor::Select(int anchor, int caret) {
    Text_.Send(Sci::SCI_SETSEL, Offsets_.PositionOf(anchor), Offsets_.PositionOf(caret));
}

} // namespace Quillbox
