// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ExpressionSearch.h"

#include "base/Characters.h"
#include "base/Utf8.h"
#include "search/ExpressionProblem.h"

#include <algorithm>

namespace Quillbox {
namespace {

bool IsBetweenReturnAndFeed(std::string_view lines, std::size_t place) {
    return place > 0 && place < lines.size() && lines[place - 1] == '\r' && lines[place] == '\n';
}

std::size_t LineStartBefore(std::string_view lines, std::size_t place) {
    if (IsBetweenReturnAndFeed(lines, place))
        --place;
    while (place > 0 && !IsLineEnd(lines[place - 1]))
        --place;
    return place;
}

std::size_t LineEndBehind(std::string_view lines, std::size_t place) {
    while (place < lines.size() && !IsLineEnd(lines[place]))
        ++place;
    return place;
}

std::size_t LineEndLength(std::string_view lines, std::size_t end) {
    return lines.substr(end, 2) == "\r\n" ? 2 : 1;
}

/// What a match must not do at either end to be a whole word: stand between two word characters.
constexpr QLatin1String WordEdge("(?:(?<!\\w)|(?!\\w))");

} // namespace

ExpressionSearch::ExpressionSearch(QRegularExpression expression,
                                   std::chrono::milliseconds timeLimit)
    : Expression_(std::move(expression)) {
    ExpressionSearch::AllowTime(timeLimit);
}

void ExpressionSearch::AllowTime(std::chrono::milliseconds timeLimit) {
    Deadline_ = std::chrono::steady_clock::now() + timeLimit;
}

std::size_t ExpressionSearch::ReadLine(std::string_view lines, std::size_t start) {
    const std::size_t end = LineEndBehind(lines, start);
    LineStart_ = start;
    Places_.clear();
    Units_.resize(end - start);
    unsigned char seen = 0;
    for (std::size_t index = start; index < end; ++index) {
        const auto byte = static_cast<unsigned char>(lines[index]);
        Units_[index - start] = byte;
        seen |= byte;
    }
    if (seen >= 0x80)
        ReadBeyondAscii(lines.substr(start, end - start));
    return end;
}

void ExpressionSearch::ReadBeyondAscii(std::string_view line) {
    Units_.clear();
    for (std::size_t place = 0; place < line.size();) {
        const DecodedCharacter character = DecodeUtf8(line.substr(place));
        Units_ += static_cast<char16_t>(character.Value);
        Places_.push_back(place);
        place += std::max<std::size_t>(character.Size, 1);
    }
    Places_.push_back(line.size());
}

/// The first unit that starts at `offset` of the line or behind.
std::size_t ExpressionSearch::UnitAt(std::size_t offset) const {
    if (Places_.empty())
        return offset;
    const auto unit = std::lower_bound(Places_.begin(), Places_.end(), offset);
    return static_cast<std::size_t>(unit - Places_.begin());
}

std::size_t ExpressionSearch::ByteOf(qsizetype unit) const {
    const auto index = static_cast<std::size_t>(unit);
    return LineStart_ + (Places_.empty() ? index : Places_[std::min(index, Places_.size() - 1)]);
}

ByteRange ExpressionSearch::RangeOf(const QRegularExpressionMatch &match, int group) const {
    const qsizetype start = match.capturedStart(group);
    // In some versions of the engine a "\K" within an assertion puts the end before the start.
    return start < 0 ? ByteRange{}
                     : ByteRange{ByteOf(start), ByteOf(std::max(start, match.capturedEnd(group)))};
}

void ExpressionSearch::ReadGroups(const QRegularExpressionMatch &match) {
    Groups_.fill({});
    const int last = std::min(match.lastCapturedIndex(), static_cast<int>(Groups_.size()) - 1);
    for (int group = 0; group <= last; ++group)
        Groups_[static_cast<std::size_t>(group)] = RangeOf(match, group);
}

ExpressionSearch::LineEnding ExpressionSearch::VisitLine(std::size_t from,
                                                         const MatchVisitor &visit) {
    const QStringView line(Units_);
    auto next = static_cast<qsizetype>(from > LineStart_ ? UnitAt(from - LineStart_) : 0);
    while (next <= line.size()) {
        if (std::chrono::steady_clock::now() >= Deadline_)
            return LineEnding::TooCostly;
        const QRegularExpressionMatch match =
            Expression_.match(line, next, QRegularExpression::NormalMatch,
                              QRegularExpression::DontCheckSubjectStringMatchOption);
        if (!match.isValid())
            return LineEnding::TooCostly;
        if (!match.hasMatch())
            break;
        const qsizetype start = match.capturedStart();
        const qsizetype end = std::max(match.capturedEnd(), start);
        if (start >= next) {
            ReadGroups(match);
            if (!visit({Groups_.front(), Groups_}))
                return LineEnding::Stopped;
        }
        next = std::max(end, next) + (end <= next || end == start ? 1 : 0);
    }
    return LineEnding::GoOn;
}

SearchEnd ExpressionSearch::VisitMatches(std::string_view lines, std::size_t from,
                                         const MatchVisitor &visit) {
    for (std::size_t start = LineStartBefore(lines, std::min(from, lines.size()));;) {
        const std::size_t end = ReadLine(lines, start);
        switch (VisitLine(from, visit)) {
        case LineEnding::TooCostly:
            return SearchEnd::TooCostly;
        case LineEnding::Stopped:
            return SearchEnd::Complete;
        case LineEnding::GoOn:
            break;
        }
        if (end == lines.size())
            return SearchEnd::Complete;
        start = end + LineEndLength(lines, end);
    }
}

TextSearch::Last ExpressionSearch::FindLast(std::string_view lines, std::size_t to,
                                            const MatchFilter &accept) {
    Last last;
    const auto keep = [&](const TextMatch &match) {
        if (match.Range.End <= to && accept(match.Range))
            last.Match = match.Range;
        return match.Range.Start < to;
    };
    for (std::size_t start = LineStartBefore(lines, std::min(to, lines.size()));;) {
        ReadLine(lines, start);
        if (VisitLine(start, keep) == LineEnding::TooCostly)
            return {SearchEnd::TooCostly, std::nullopt};
        if (last.Match || start == 0)
            return last;
        start = LineStartBefore(lines, start - 1);
    }
}

MadeSearch MakeExpressionSearch(const FindRequest &request, std::chrono::milliseconds timeLimit) {
    QRegularExpression::PatternOptions options =
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::MultilineOption;
    if (!request.MatchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    QRegularExpression expression(request.Term, options);
    if (!expression.isValid())
        return BadExpression{
            ExpressionProblem(expression.errorString(), expression.patternErrorOffset())};
    if (request.WholeWord) {
        // The expression may end with a comment, which goes as far as a line end; between "(?x)"
        // and the next bracket a line end means nothing else.
        const QString end = QStringLiteral("(?x)\n)");
        const QRegularExpression words(
            WordEdge + QStringLiteral("(?:") + request.Term + end + WordEdge, options);
        if (!words.isValid())
            return BadExpression{
                QStringLiteral("Esta expresión no se puede combinar con «Palabra completa».")};
        expression = words;
    }
    return std::make_unique<ExpressionSearch>(std::move(expression), timeLimit);
}

} // namespace Quillbox
