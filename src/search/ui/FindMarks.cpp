// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindMarks.h"

#include "editor/ui/ScintillaMarks.h"
#include "editor/ui/ScintillaPieces.h"
#include "search/ui/ScintillaSearch.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Lines above and below the view that are marked, too: a small step shows no unmarked match.
constexpr int LinesAround = 20;

/// So that very long lines do not hold up typing.
constexpr BytePosition MostBytes = BytePosition{256} * 1024;
constexpr std::chrono::milliseconds LongestLook(60);

/// Amber is seen on light and on dark paper; it lies beneath the text, which keeps its colour.
constexpr int Amber = 0x0098F0; // blue, green, red
constexpr int FillAlpha = 70;
constexpr int OutlineAlpha = 170;

MovingRange View(const ScintillaText &text) {
    const auto top = static_cast<int>(text.Send(Sci::SCI_GETFIRSTVISIBLELINE));
    const auto count = static_cast<int>(text.Send(Sci::SCI_LINESONSCREEN));
    const auto lineShownAt = [&text](int line) {
        return text.NearestLine({static_cast<int>(text.Send(Sci::SCI_DOCLINEFROMVISIBLE, line))});
    };
    const LineIndex first = lineShownAt(std::max(top - LinesAround, 0));
    const LineIndex last = lineShownAt(top + count + LinesAround);
    MovingRange view{text.LineStart(first), text.LineEnd(last)};
    if (view.End - view.Start <= MostBytes)
        return view;
    const BytePosition shown = text.Send(Sci::SCI_POSITIONFROMPOINT, 0, 0);
    view.Start = std::max<std::int64_t>(view.Start, shown - MostBytes / 4);
    view.End = std::min<std::int64_t>(view.End, view.Start + MostBytes);
    return view;
}

/// What a plain search has to see of the text: whole words show at the characters beside them.
TextPiece BytesAround(const ScintillaText &text, const MovingRange &range) {
    constexpr std::int64_t longestCharacter = 3;
    const auto start =
        static_cast<BytePosition>(std::max<std::int64_t>(range.Start - longestCharacter, 0));
    const auto end = static_cast<BytePosition>(
        std::min<std::int64_t>(range.End + longestCharacter, text.Length()));
    return {start, text.Bytes(start, end)};
}

/// An expression has to see whole lines; those that are too long for that are left out.
void VisitLines(const ScintillaText &text, const MovingRange &range,
                const std::function<bool(const TextPiece &)> &visit) {
    const LineIndex last = text.LineOf(static_cast<BytePosition>(range.End));
    LineIndex line = text.LineOf(static_cast<BytePosition>(range.Start));
    for (; line.Value <= last.Value; ++line.Value) {
        const BytePosition start = text.LineStart(line);
        const BytePosition end = text.LineEnd(line);
        if (end - start <= MostBytes && !visit({start, text.Bytes(start, end)}))
            return;
    }
}

} // namespace

void FindMarks::Prepare(const ScintillaText &text) {
    text.Send(Sci::SCI_INDICSETSTYLE, Indicator::Match, Sci::INDIC_STRAIGHTBOX);
    text.Send(Sci::SCI_INDICSETFORE, Indicator::Match, Amber);
    text.Send(Sci::SCI_INDICSETALPHA, Indicator::Match, FillAlpha);
    text.Send(Sci::SCI_INDICSETOUTLINEALPHA, Indicator::Match, OutlineAlpha);
    text.Send(Sci::SCI_INDICSETUNDER, Indicator::Match, 1);
}

void FindMarks::Remove(const ScintillaText &text) {
    text.Send(Sci::SCI_SETINDICATORCURRENT, Indicator::Match);
    text.Send(Sci::SCI_INDICATORCLEARRANGE, 0, text.Length());
}

void FindMarks::Show(const ScintillaText &text, const FindTask &task) {
    std::vector<MovingRange> matches = MatchesInView(text, task);
    // Marking has the component report a change, which would be answered by marking.
    if (IsShown_ && matches == Shown_)
        return;
    Remove(text);
    for (const MovingRange &match : matches)
        text.Send(Sci::SCI_INDICATORFILLRANGE, static_cast<BytePosition>(match.Start),
                  static_cast<BytePosition>(match.End - match.Start));
    Shown_ = std::move(matches);
    IsShown_ = true;
}

std::vector<MovingRange> FindMarks::MatchesInView(const ScintillaText &text, const FindTask &task) {
    std::vector<MovingRange> matches;
    if (task.Request.Term.isEmpty() || task.Request == GivenUp_)
        return matches;
    MadeSearch made = MakeSearch(task.Request, LongestLook);
    const auto *search = std::get_if<std::unique_ptr<TextSearch>>(&made);
    if (search == nullptr)
        return matches;
    const MovingRange scope = RangeOf(task, text);
    const MovingRange view = View(text);
    const MovingRange looked{std::max(view.Start, scope.Start), std::min(view.End, scope.End)};
    const auto visit = [&](const TextPiece &piece) {
        const auto keep = [&](const TextMatch &match) {
            const MovingRange range{piece.Start + static_cast<std::int64_t>(match.Range.Start),
                                    piece.Start + static_cast<std::int64_t>(match.Range.End)};
            if (range.End <= looked.End && range.Start < range.End)
                matches.push_back(range);
            return range.Start < looked.End;
        };
        const std::int64_t inPiece = std::max<std::int64_t>(looked.Start - piece.Start, 0);
        const SearchEnd end =
            (*search)->VisitMatches(piece.Bytes, static_cast<std::size_t>(inPiece), keep);
        if (end == SearchEnd::TooCostly)
            GivenUp_ = task.Request;
        return end == SearchEnd::Complete;
    };
    if (looked.Start <= looked.End && task.Request.IsExpression)
        VisitLines(text, looked, visit);
    else if (looked.Start <= looked.End)
        visit(BytesAround(text, looked));
    return matches;
}

} // namespace Quillbox
