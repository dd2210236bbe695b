// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/FindCount.h"

#include "editor/ui/ScintillaPieces.h"
#include "search/ui/ScintillaSearch.h"

#include <QLocale>

namespace Quillbox {

namespace {

using Clock = std::chrono::steady_clock;

/// Typing goes on while the matches are counted, so a piece takes about this long.
constexpr std::chrono::milliseconds Slice(8);
constexpr std::chrono::milliseconds LongestCount(1500);
/// A costly expression is given up within a piece, so that it cannot hold up typing.
constexpr std::chrono::milliseconds LongestPiece(100);
constexpr std::chrono::milliseconds Pause(150);
constexpr BytePosition PieceSize = BytePosition{128} * 1024;

/// Up to this many matches are told apart by their numbers.
constexpr std::size_t MostNumbered = std::size_t{100} * 1000;

QString Shown(std::size_t number) {
    return QLocale(QLocale::Spanish, QLocale::Spain).toString(static_cast<qulonglong>(number));
}

} // namespace

FindCount::FindCount(QObject *parent)
    : QObject(parent) {
    Timer_.setSingleShot(true);
    connect(&Timer_, &QTimer::timeout, this, &FindCount::CountPiece);
}

void FindCount::Stop() {
    Timer_.stop();
    Search_.reset();
    Starts_.clear();
    IsKnown_ = false;
    emit Changed();
}

void FindCount::Begin(QsciScintillaBase *editor, const FindTask &task) {
    Stop();
    Editor_ = editor;
    Task_ = task;
    if (editor != nullptr && !task.Request.Term.isEmpty())
        Timer_.start(Pause);
}

void FindCount::CountPiece() {
    if (!Editor_)
        return Stop();
    const ScintillaText text(*Editor_);
    if (!Search_) {
        MadeSearch made = MakeSearch(Task_.Request, LongestPiece);
        if (std::holds_alternative<BadExpression>(made))
            return;
        Search_ = std::move(std::get<std::unique_ptr<TextSearch>>(made));
        Range_ = RangeOf(Task_, text);
        Next_ = static_cast<BytePosition>(Range_.Start);
        Count_ = 0;
        Spent_ = {};
    }
    Search_->AllowTime(LongestPiece);
    const Clock::time_point start = Clock::now();
    do {
        const BytePosition end = std::min(Next_ + PieceSize, static_cast<BytePosition>(Range_.End));
        const LineIndex last = text.LineOf(end);
        if (!CountUntil(end))
            return End(false);
        Next_ = text.NextLineStart(last);
        if (Next_ > Range_.End || last.Value + 1 >= text.LineCount())
            return End(true);
    } while (Clock::now() - start < Slice);
    Spent_ += Clock::now() - start;
    if (Spent_ > LongestCount)
        return End(false);
    Timer_.start(0);
}

/// Up to the end of the line of `end`.
bool FindCount::CountUntil(BytePosition end) {
    bool isComplete = true;
    VisitPieces(ScintillaText(*Editor_), Next_, end, PieceOrder::Forward,
                [&](const TextPiece &piece) {
                    const auto count = [&](const TextMatch &match) {
                        const BytePosition start =
                            piece.Start + static_cast<BytePosition>(match.Range.Start);
                        if (piece.Start + static_cast<BytePosition>(match.Range.End) > Range_.End)
                            return false;
                        ++Count_;
                        if (Starts_.size() < MostNumbered)
                            Starts_.push_back(start);
                        return true;
                    };
                    const BytePosition from = std::max<BytePosition>(Next_ - piece.Start, 0);
                    isComplete = Search_->VisitMatches(piece.Bytes, static_cast<std::size_t>(from),
                                                       count) == SearchEnd::Complete;
                    return isComplete;
                });
    return isComplete;
}

void FindCount::End(bool isComplete) {
    Search_.reset();
    IsKnown_ = isComplete || Count_ > 0;
    IsComplete_ = isComplete;
    emit Changed();
}

QString FindCount::NumberOfSelection() const {
    const ScintillaText text(*Editor_);
    const auto found = std::lower_bound(Starts_.begin(), Starts_.end(), text.SelectionStart());
    if (found == Starts_.end() || *found != text.SelectionStart() ||
        text.SelectionStart() == text.SelectionEnd())
        return {};
    return Shown(static_cast<std::size_t>(found - Starts_.begin()) + 1);
}

QString FindCount::Text() const {
    if (!IsKnown_ || !Editor_)
        return {};
    if (Count_ == 0)
        return QStringLiteral("Sin coincidencias");
    const QString count =
        IsComplete_ ? Shown(Count_) : QStringLiteral("más de %1").arg(Shown(Count_));
    if (const QString number = NumberOfSelection(); !number.isEmpty())
        return QStringLiteral("%1 de %2").arg(number, count);
    return count == u'1' ? QStringLiteral("1 coincidencia")
                         : QStringLiteral("%1 coincidencias").arg(count);
}

} // namespace Quillbox
