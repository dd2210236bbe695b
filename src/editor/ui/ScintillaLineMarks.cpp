// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaLineMarks.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

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

} // namespace Quillbox
