// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaLineMarks.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Stands at both ends of the edit in the undo history.
constexpr int LineKeepingToken = 0x4C4B;
constexpr std::intptr_t EveryMark = -1;

} // namespace

LineMarks::LineMarks(const ScintillaText &text) {
    const auto next = [&text](int line) {
        return static_cast<int>(text.Send(Sci::SCI_MARKERNEXT, line, EveryMark));
    };
    for (int line = next(0); line >= 0; line = next(line + 1))
        Lines_.push_back({line, text.Send(Sci::SCI_MARKERGET, line)});
}

void LineMarks::PutBack(const ScintillaText &text) const {
    text.Send(Sci::SCI_MARKERDELETEALL, EveryMark);
    for (const MarkedLine &line : Lines_)
        text.Send(Sci::SCI_MARKERADDSET, line.Line, line.Marks);
}

LineKeepingEdit::LineKeepingEdit(const ScintillaText &text)
    : Text_(text)
    , Marks_(text) {
    Text_.Send(Sci::SCI_ADDUNDOACTION, LineKeepingToken);
}

LineKeepingEdit::~LineKeepingEdit() {
    Text_.Send(Sci::SCI_ADDUNDOACTION, LineKeepingToken);
    Marks_.PutBack(Text_);
}

LineMarkKeeper::LineMarkKeeper(const ScintillaText &text)
    : Text_(text) {}

/// The first report comes before the edit is taken back or done again, the second behind it.
void LineMarkKeeper::StepReported(int token) {
    if (token != LineKeepingToken)
        return;
    if (Marks_) {
        Marks_->PutBack(Text_);
        Marks_.reset();
    } else {
        Marks_.emplace(Text_);
    }
}

} // namespace Quillbox
