// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/ScintillaSearch.h"

#include "editor/ui/ScintillaPieces.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// What an expression is given, and more for each megabyte: no sensible one comes near.
constexpr std::chrono::milliseconds ShortSearch(4000);
constexpr std::chrono::milliseconds ForEachMegabyte(50);
constexpr BytePosition Megabyte = BytePosition{1000} * 1000;

/// Looks for one request in one text.
class Finder {
  public:
    Finder(const ScintillaText &text, const FindTask &task, TextSearch &search)
        : Text_(text)
        , Search_(search)
        , Range_(RangeOf(task, text))
        , Selection_{text.SelectionStart(), text.SelectionEnd()}
        , Wrap_(task.Wrap) {
        StartsOver_ = task.Scope && Selection_ == Range_;
    }

    FindOutcome Find(FindDirection direction) {
        const bool forward = direction == FindDirection::Forward;
        if (forward)
            FindForward(StartsOver_ ? Range_.Start : Selection_.End, Range_.End);
        else
            FindBackward(Range_.Start, StartsOver_ ? Range_.End : Selection_.Start);
        if (Outcome_.Match || !Outcome_.Problem.isEmpty() || !Wrap_ || StartsOver_)
            return Outcome_;
        MayBeAtCaret_ = true;
        if (forward)
            FindForward(Range_.Start, Selection_.End);
        else
            FindBackward(Selection_.Start, Range_.End);
        Outcome_.Wrapped = Outcome_.Match.has_value();
        return Outcome_;
    }

  private:
    bool Counts(const MovingRange &match) const {
        const bool isAtCaret = match.Start == match.End && match == Selection_;
        return match.Start >= Range_.Start && match.End <= Range_.End &&
               (MayBeAtCaret_ || !isAtCaret);
    }

    /// The first match that starts at `from` or behind, in no line behind that of `to`.
    void FindForward(std::int64_t from, std::int64_t to) {
        const BytePosition start = Inside(from);
        const auto visit = [&](const TextPiece &piece) {
            const auto keep = [&](const TextMatch &match) {
                const MovingRange range = InText(match.Range, piece);
                if (Counts(range))
                    Outcome_.Match = range;
                return !Outcome_.Match && range.Start <= Range_.End;
            };
            const BytePosition inPiece = std::max<BytePosition>(start - piece.Start, 0);
            Take(Search_.VisitMatches(piece.Bytes, static_cast<std::size_t>(inPiece), keep));
            return !IsDone();
        };
        if (start <= Inside(to))
            VisitPieces(Text_, start, Inside(to), PieceOrder::Forward, visit);
    }

    /// The last match that ends at `to` or before, in no line before that of `from`.
    void FindBackward(std::int64_t from, std::int64_t to) {
        const BytePosition end = Inside(to);
        const auto visit = [&](const TextPiece &piece) {
            const auto counts = [&](ByteRange match) { return Counts(InText(match, piece)); };
            const auto inPiece = static_cast<std::size_t>(end - piece.Start);
            const TextSearch::Last last =
                Search_.FindLast(piece.Bytes, std::min(inPiece, piece.Bytes.size()), counts);
            if (last.Match)
                Outcome_.Match = InText(*last.Match, piece);
            Take(last.End);
            return !IsDone();
        };
        if (Inside(from) <= end)
            VisitPieces(Text_, Inside(from), end, PieceOrder::Backward, visit);
    }

    BytePosition Inside(std::int64_t place) const {
        return static_cast<BytePosition>(std::clamp(place, Range_.Start, Range_.End));
    }

    static MovingRange InText(ByteRange range, const TextPiece &piece) {
        return {piece.Start + static_cast<BytePosition>(range.Start),
                piece.Start + static_cast<BytePosition>(range.End)};
    }

    void Take(SearchEnd end) {
        if (end == SearchEnd::TooCostly)
            Outcome_.Problem = TooCostlyProblem();
    }
    bool IsDone() const { return Outcome_.Match || !Outcome_.Problem.isEmpty(); }

    const ScintillaText &Text_;
    TextSearch &Search_;
    MovingRange Range_;
    MovingRange Selection_;
    bool Wrap_;
    bool StartsOver_ = false;
    bool MayBeAtCaret_ = false;
    FindOutcome Outcome_;
};

} // namespace

std::chrono::milliseconds LongestSearch(const ScintillaText &text) {
    return ShortSearch + ForEachMegabyte * (text.Length() / Megabyte);
}

QString TooCostlyProblem() {
    return QStringLiteral("La expresión es demasiado costosa para este texto.");
}

MovingRange RangeOf(const FindTask &task, const ScintillaText &text) {
    const std::int64_t length = text.Length();
    if (!task.Scope)
        return {0, length};
    return {std::min<std::int64_t>(task.Scope->Start, length),
            std::min<std::int64_t>(task.Scope->End, length)};
}

FindOutcome SelectMatch(QsciScintillaBase &editor, const FindTask &task, FindDirection direction) {
    const ScintillaText text(editor);
    MadeSearch made = MakeSearch(task.Request, LongestSearch(text));
    if (const auto *bad = std::get_if<BadExpression>(&made))
        return {std::nullopt, false, bad->Reason};
    Finder finder(text, task, *std::get<std::unique_ptr<TextSearch>>(made));
    const FindOutcome outcome = finder.Find(direction);
    if (outcome.Match)
        SelectInView(text, *outcome.Match);
    return outcome;
}

void SelectInView(const ScintillaText &text, const MovingRange &range) {
    const auto start = static_cast<BytePosition>(range.Start);
    const int line = text.LineOf(start).Value;
    text.Send(Sci::SCI_ENSUREVISIBLE, line);
    const std::intptr_t shown = text.Send(Sci::SCI_VISIBLEFROMDOCLINE, line);
    const std::intptr_t top = text.Send(Sci::SCI_GETFIRSTVISIBLELINE);
    const std::intptr_t count = text.Send(Sci::SCI_LINESONSCREEN);
    if (shown < top || shown >= top + count)
        text.Send(Sci::SCI_SETFIRSTVISIBLELINE, std::max<std::intptr_t>(shown - count / 2, 0));
    text.Send(Sci::SCI_SETSEL, start, static_cast<BytePosition>(range.End));
}

} // namespace Quillbox
