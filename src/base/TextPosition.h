// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

/// A line of a text, 0-based. -1 stands for no line where an operation says so.
struct LineIndex {
    int Value = 0;
    bool operator==(const LineIndex &) const = default;
};

/// A line as people and compilers count it, 1-based.
struct LineNumber {
    int Value = 1;
    bool operator==(const LineNumber &) const = default;
};

constexpr LineNumber NumberOf(LineIndex line) { return {line.Value + 1}; }

/// A column of a line in characters, 0-based; the column after the last character is valid.
struct ColumnIndex {
    int Value = 0;
    bool operator==(const ColumnIndex &) const = default;
};

/// A column as people count it, 1-based.
struct ColumnNumber {
    int Value = 1;
    bool operator==(const ColumnNumber &) const = default;
};

constexpr ColumnNumber NumberOf(ColumnIndex column) { return {column.Value + 1}; }

struct TextPosition {
    LineIndex Line;
    ColumnIndex Column;
    bool operator==(const TextPosition &) const = default;
};

/// A stretch of text; normalised: `Start` is never after `End`.
struct TextRange {
    TextPosition Start;
    TextPosition End;
    bool operator==(const TextRange &) const = default;
    bool IsEmpty() const { return Start == End; }
};

} // namespace Quillbox
