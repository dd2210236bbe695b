// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/TextPosition.h"

#include <Qsci/qsciscintillabase.h>

#include <QByteArray>
#include <QPoint>
#include <QString>

#include <cstdint>
#include <string_view>

namespace Quillbox {

/// A place in the editing component's text in bytes of UTF-8, 0-based.
using BytePosition = std::intptr_t;

/// Kinds of SCN_MODIFIED that report a change of the text. It is about to happen, but for bulk
/// changes, which are reported when they are over.
constexpr int InsertionReport =
    QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_INSERTTEXT;
constexpr int DeletionReport =
    QsciScintillaBase::SC_MOD_BEFOREDELETE | QsciScintillaBase::SC_MOD_DELETETEXT;

/// `text` with a "?" in place of each character that the code page lacks.
QString EditorCharacters(const QString &text);
/// The same as UTF-8.
QByteArray EditorBytes(const QString &text);
QString FromUtf8(std::string_view bytes);

/// The text of an editing component: messages to it, and the way from lines and character columns
/// to its byte positions and back. Lines and columns outside the text mean the nearest inside.
class ScintillaText {
  public:
    /// `control` outlives this object.
    explicit ScintillaText(const QsciScintillaBase &control);

    std::intptr_t Send(unsigned message, std::intptr_t first = 0, std::intptr_t second = 0) const;

    BytePosition Length() const;
    int LineCount() const;
    LineIndex NearestLine(LineIndex line) const;
    LineIndex LineOf(BytePosition position) const;
    BytePosition LineStart(LineIndex line) const;
    /// Before the line end.
    BytePosition LineEnd(LineIndex line) const;
    /// Behind the line end.
    BytePosition NextLineStart(LineIndex line) const;
    BytePosition Caret() const;
    /// With nothing selected, in view; moving up and down keeps to its column from now on.
    void MoveCaret(BytePosition position) const;
    BytePosition SelectionStart() const;
    BytePosition SelectionEnd() const;

    /// Valid until the next change of the text.
    std::string_view Bytes(BytePosition start, BytePosition end) const;
    std::string_view LineBytes(LineIndex line) const;

    /// What ends the lines that are typed.
    std::string_view LineEndBytes() const;
    /// Where a position shows, from the upper left corner of the viewport.
    QPoint PointAt(BytePosition position) const;

    BytePosition PositionOf(TextPosition position) const;
    TextPosition PositionAt(BytePosition position) const;
    int CharactersIn(BytePosition start, BytePosition end) const;

    /// As one undo step.
    void Replace(BytePosition start, BytePosition end, std::string_view replacement) const;

  private:
    using DirectFunction = std::intptr_t (*)(QsciScintillaQt *, unsigned, std::uintptr_t,
                                             std::intptr_t);

    DirectFunction Function_;
    QsciScintillaQt *Target_;
};

/// All edits during its life are one undo step.
class UndoStep {
  public:
    explicit UndoStep(const ScintillaText &text);
    ~UndoStep();
    UndoStep(const UndoStep &) = delete;
    UndoStep &operator=(const UndoStep &) = delete;

  private:
    const ScintillaText &Text_;
};

} // namespace Quillbox
