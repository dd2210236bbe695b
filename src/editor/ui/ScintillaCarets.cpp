// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaCarets.h"

#include <algorithm>
#include <vector>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

struct Selection {
    BytePosition Start;
    BytePosition End;
    int Number; ///< in the editing component
};

/// In the order of the text.
std::vector<Selection> SelectionsOf(const ScintillaText &text) {
    std::vector<Selection> selections;
    for (int number = 0; number < CaretCount(text); ++number)
        selections.push_back({text.Send(Sci::SCI_GETSELECTIONNSTART, number),
                              text.Send(Sci::SCI_GETSELECTIONNEND, number), number});
    std::ranges::sort(selections, {}, &Selection::Start);
    return selections;
}

std::string BlanksBefore(const ScintillaText &text, int number) {
    const auto beyond = std::min(text.Send(Sci::SCI_GETSELECTIONNCARETVIRTUALSPACE, number),
                                 text.Send(Sci::SCI_GETSELECTIONNANCHORVIRTUALSPACE, number));
    return std::string(static_cast<std::size_t>(beyond), ' ');
}

void SetCarets(const ScintillaText &text, const std::vector<BytePosition> &places,
               std::size_t main) {
    text.Send(Sci::SCI_SETEMPTYSELECTION, places.front());
    for (std::size_t caret = 1; caret < places.size(); ++caret)
        text.Send(Sci::SCI_ADDSELECTION, places[caret], places[caret]);
    text.Send(Sci::SCI_SETMAINSELECTION, static_cast<std::intptr_t>(main));
    text.Send(Sci::SCI_SCROLLCARET);
}

} // namespace

void SetUpSeveralCarets(const ScintillaText &text) {
    text.Send(Sci::SCI_SETMULTIPLESELECTION, 1);
    text.Send(Sci::SCI_SETADDITIONALSELECTIONTYPING, 1);
    text.Send(Sci::SCI_SETMULTIPASTE, Sci::SC_MULTIPASTE_EACH);
    text.Send(Sci::SCI_SETVIRTUALSPACEOPTIONS, Sci::SCVS_RECTANGULARSELECTION);
}

int CaretCount(const ScintillaText &text) {
    return static_cast<int>(text.Send(Sci::SCI_GETSELECTIONS));
}

bool HasSelection(const ScintillaText &text) { return text.Send(Sci::SCI_GETSELECTIONEMPTY) == 0; }

void ReplaceSelections(const ScintillaText &text, const ReplacementMaker &replacementFor) {
    const std::vector<Selection> selections = SelectionsOf(text);
    const auto mainNumber = static_cast<int>(text.Send(Sci::SCI_GETMAINSELECTION));
    std::vector<std::string> replacements(selections.size());
    for (std::size_t caret = 0; caret < selections.size(); ++caret)
        replacements[caret] = replacementFor({static_cast<int>(caret), selections[caret].Start,
                                              BlanksBefore(text, selections[caret].Number)});
    const UndoStep step(text);
    for (std::size_t caret = selections.size(); caret-- > 0;)
        text.Replace(selections[caret].Start, selections[caret].End, replacements[caret]);
    std::vector<BytePosition> places;
    std::size_t main = 0;
    BytePosition grown = 0;
    for (std::size_t caret = 0; caret < selections.size(); ++caret) {
        const auto length = static_cast<BytePosition>(replacements[caret].size());
        places.push_back(selections[caret].Start + grown + length);
        grown += length - (selections[caret].End - selections[caret].Start);
        main = selections[caret].Number == mainNumber ? caret : main;
    }
    SetCarets(text, places, main);
}

void CopySelections(const ScintillaText &text) {
    if (CaretCount(text) == 1 || text.Send(Sci::SCI_SELECTIONISRECTANGLE) != 0) {
        text.Send(Sci::SCI_COPY);
        return;
    }
    std::string lines;
    for (const Selection &selection : SelectionsOf(text)) {
        if (selection.Start == selection.End)
            continue;
        lines += lines.empty() ? "" : "\n";
        lines += text.Bytes(selection.Start, selection.End);
    }
    if (!lines.empty())
        text.Send(Sci::SCI_COPYTEXT, static_cast<std::intptr_t>(lines.size()),
                  reinterpret_cast<std::intptr_t>(lines.data()));
}

void KeepMainCaret(const ScintillaText &text) {
    const std::intptr_t main = text.Send(Sci::SCI_GETMAINSELECTION);
    const std::intptr_t anchor = text.Send(Sci::SCI_GETSELECTIONNANCHOR, main);
    const std::intptr_t caret = text.Send(Sci::SCI_GETSELECTIONNCARET, main);
    text.Send(Sci::SCI_SETEMPTYSELECTION, caret);
    text.Send(Sci::SCI_SETSEL, anchor, caret);
}

void SelectNextOccurrence(const ScintillaText &text) {
    text.Send(Sci::SCI_SETSEARCHFLAGS, 0);
    text.Send(Sci::SCI_TARGETWHOLEDOCUMENT);
    text.Send(Sci::SCI_MULTIPLESELECTADDNEXT);
}

} // namespace Quillbox
