// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaLineMarks.h"

namespace Quillbox {

/// `Kept`: every line is replaced by another one, and the marks of lines stay. `Moved`: lines come
/// or go, and the component moves the marks.
enum class BulkLines { Kept, Moved };

/// Many changes that are reported as two, one that takes out and one that puts in, when they are
/// over: a million reports take longer than the changes.
class BulkChange {
  public:
    /// The first `before` and the last `behind` bytes of the text stay as they are.
    BulkChange(QsciScintillaBase &editor, BulkLines lines, BytePosition before,
               BytePosition behind);
    ~BulkChange();
    BulkChange(const BulkChange &) = delete;
    BulkChange &operator=(const BulkChange &) = delete;

  private:
    QsciScintillaBase &Editor_;
    ScintillaText Text_;
    BytePosition Before_;
    BytePosition Behind_;
    BytePosition Length_;
    int LineCount_;
    std::intptr_t EventMask_;
    std::optional<LineMarks> Marks_;
};

/// All edits during its life are a bulk change, also when they are taken back and done again. To
/// live within an UndoStep.
class BulkEdit {
  public:
    BulkEdit(QsciScintillaBase &editor, BulkLines lines, BytePosition before, BytePosition behind);
    ~BulkEdit();
    BulkEdit(const BulkEdit &) = delete;
    BulkEdit &operator=(const BulkEdit &) = delete;

  private:
    ScintillaText Text_;
    std::vector<int> Tokens_; ///< stand before the edits, and in the other order behind them
    BulkChange Change_;
};

/// Makes a bulk change of a BulkEdit that is taken back or done again. Each editor has one.
class BulkSteps {
  public:
    explicit BulkSteps(QsciScintillaBase &editor);
    /// Of a modification of the kind SC_MOD_CONTAINER.
    void TokenReported(int token);

  private:
    QsciScintillaBase &Editor_;
    std::vector<int> Tokens_; ///< seen so far
    std::optional<BulkChange> Change_;
};

} // namespace Quillbox
