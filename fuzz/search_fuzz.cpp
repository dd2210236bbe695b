// SPDX-License-Identifier: GPL-3.0-or-later
// Options ("c" for case, "w" for whole words, "e" for expressions), a term and a replacement in
// the first three lines, a text behind them. Matches lie in their order, within lines and between
// characters; a plain term is found wherever it stands; replacing in few edits or in many gives the
// text that putting it together piece by piece gives.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "search/PlainSearch.h"
#include "search/ReplacementText.h"
#include "search/TextEdits.h"

#include <string>
#include <vector>

using namespace Quillbox;
using namespace std::chrono_literals;

namespace {

constexpr auto TimeLimit = 100ms;
constexpr std::string_view LineEnds = "\r\n";

std::string Utf8Of(const QByteArray &ansi) { return FromAnsi(ansi).toUtf8().toStdString(); }

bool IsBetweenCharacters(std::string_view text, std::size_t place) {
    return place <= text.size() &&
           (place == text.size() || (static_cast<unsigned char>(text[place]) & 0xC0U) != 0x80U);
}

void CheckRange(std::string_view text, ByteRange range) {
    Require(range.Start <= range.End && IsBetweenCharacters(text, range.Start) &&
            IsBetweenCharacters(text, range.End));
    const std::string_view match = text.substr(range.Start, range.End - range.Start);
    Require(match.find_first_of(LineEnds) == std::string_view::npos);
}

/// What replacing does to a text, in three ways.
class Replacing {
  public:
    Replacing(std::string_view text, const ReplacementText &replacement)
        : Text_(text)
        , Replacement_(replacement) {
        Joined_.BeginPiece(0, text);
        Single_.BeginPiece(0, text);
    }

    void Take(const TextMatch &match) {
        std::string bytes;
        Replacement_.AppendTo(bytes, Text_, match);
        Joined_.Replace(match.Range, bytes);
        Single_.Replace(match.Range, bytes);
        Whole_ += Text_.substr(Done_, match.Range.Start - Done_);
        Whole_ += bytes;
        Done_ = match.Range.End;
    }
    void Check() const {
        const std::string whole = Whole_ + std::string(Text_.substr(Done_));
        Require(After(Joined_) == whole && After(Single_) == whole);
        Require(Joined_.Count() == Single_.Count() && Joined_.Edits().size() <= Joined_.Count());
    }

  private:
    std::string After(const TextEdits &edits) const {
        std::string text(Text_);
        for (auto edit = edits.Edits().rbegin(); edit != edits.Edits().rend(); ++edit)
            text.replace(edit->Range.Start, edit->Range.End - edit->Range.Start, edit->Text);
        return text;
    }

    std::string_view Text_;
    const ReplacementText &Replacement_;
    TextEdits Joined_{TextEdits::Neighbours::Join};
    TextEdits Single_{TextEdits::Neighbours::KeepApart};
    std::string Whole_;
    std::size_t Done_ = 0;
};

/// All matches, when the search came to its end.
std::optional<std::vector<ByteRange>> VisitAndReplace(TextSearch &search, std::string_view text,
                                                      const ReplacementText &replacement) {
    Replacing replacing(text, replacement);
    std::vector<ByteRange> ranges;
    const SearchEnd end = search.VisitMatches(text, 0, [&](const TextMatch &match) {
        CheckRange(text, match.Range);
        Require(ranges.empty() || match.Range.Start >= ranges.back().End);
        for (const ByteRange group : match.Groups)
            CheckRange(text, group);
        ranges.push_back(match.Range);
        replacing.Take(match);
        return true;
    });
    replacing.Check();
    return end == SearchEnd::Complete ? std::optional(ranges) : std::nullopt;
}

void CheckPlain(const FindRequest &request, std::string_view text,
                const std::vector<ByteRange> &ranges) {
    const std::string term = request.Term.toUtf8().toStdString();
    for (const ByteRange range : ranges) {
        const std::string match(text.substr(range.Start, range.End - range.Start));
        Require(QString::fromStdString(match).compare(
                    request.Term, request.MatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive) ==
                0);
        Require(!request.WholeWord || !CutsAWord(text, range));
    }
    auto found = ranges.begin();
    for (std::size_t place = text.find(term); place != std::string_view::npos;
         place = text.find(term, place + 1)) {
        while (found != ranges.end() && found->End <= place)
            ++found;
        const ByteRange here{place, place + term.size()};
        const bool isTaken = found != ranges.end() && found->Start < here.End;
        Require(isTaken || (request.WholeWord && CutsAWord(text, here)));
    }
}

void CheckLast(TextSearch &search, std::string_view text, const std::vector<ByteRange> &ranges) {
    const TextSearch::Last last =
        search.FindLast(text, text.size(), [](ByteRange) { return true; });
    if (last.End != SearchEnd::Complete)
        return;
    Require(last.Match.has_value() == !ranges.empty());
    if (last.Match)
        CheckRange(text, *last.Match);
}

void CheckSearch(const FindRequest &request, const std::string &replacement,
                 std::string_view text) {
    const MadeSearch made = MakeSearch(request, TimeLimit);
    if (const auto *bad = std::get_if<BadExpression>(&made)) {
        Require(request.IsExpression && !bad->Reason.isEmpty());
        return;
    }
    TextSearch &search = *std::get<std::unique_ptr<TextSearch>>(made);
    const auto put = request.IsExpression ? ReplacementText::WithGroups(replacement, LineEnds)
                                          : ReplacementText::AsItStands(replacement);
    const auto ranges = VisitAndReplace(search, text, put);
    if (!ranges)
        return;
    if (!request.IsExpression)
        CheckPlain(request, text, *ranges);
    CheckLast(search, text, *ranges);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QByteArray bytes = BytesOf(data, size);
    const QByteArray options = TakeLine(bytes);
    const QString term = FromAnsi(TakeLine(bytes));
    const std::string replacement = Utf8Of(TakeLine(bytes));
    if (term.isEmpty() || term.contains(u'\r'))
        return 0;
    CheckSearch({term, options.contains('c'), options.contains('w'), options.contains('e')},
                replacement, Utf8Of(bytes));
    return 0;
}
