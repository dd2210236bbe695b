// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/ScintillaText.h"

#include <optional>
#include <vector>

namespace Quillbox {

/// The marks of a text's lines, all kinds of them, kept while lines are taken out and put back.
class LineMarks {
  public:
    explicit LineMarks(const ScintillaText &text);
    void PutBack(const ScintillaText &text) const;

  private:
    struct MarkedLine {
        int Line;
        std::intptr_t Marks; ///< a bit for each mark
    };
    std::vector<MarkedLine> Lines_;
};

/// An edit during whose life whole lines are replaced by as many others. The marks of lines stay,
/// also when it is taken back and done again. To live within an UndoStep.
class LineKeepingEdit {
  public:
    explicit LineKeepingEdit(const ScintillaText &text);
    ~LineKeepingEdit();
    LineKeepingEdit(const LineKeepingEdit &) = delete;
    LineKeepingEdit &operator=(const LineKeepingEdit &) = delete;

  private:
    const ScintillaText &Text_;
    LineMarks Marks_;
};

/// Keeps the marks of lines when a LineKeepingEdit is taken back or done again. Each editor has
/// one and hands it the component's reports.
class LineMarkKeeper {
  public:
    explicit LineMarkKeeper(const ScintillaText &text);
    /// Of a modification of the kind SC_MOD_CONTAINER.
    void StepReported(int token);

  private:
    const ScintillaText &Text_;
    std::optional<LineMarks> Marks_;
};

} // namespace Quillbox
