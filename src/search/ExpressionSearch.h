// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/TextSearch.h"

#include <QRegularExpression>

#include <array>
#include <string>
#include <vector>

namespace Quillbox {

/// Looks for a regular expression line by line: to the expression each line is a text of its own.
class ExpressionSearch final : public TextSearch {
  public:
    ExpressionSearch(QRegularExpression expression, std::chrono::milliseconds timeLimit);

    SearchEnd VisitMatches(std::string_view lines, std::size_t from,
                           const MatchVisitor &visit) override;
    Last FindLast(std::string_view lines, std::size_t to, const MatchFilter &accept) override;
    void AllowTime(std::chrono::milliseconds timeLimit) override;

  private:
    enum class LineEnding { GoOn, Stopped, TooCostly };

    /// Takes in the line that starts at `start`; returns its end.
    std::size_t ReadLine(std::string_view lines, std::size_t start);
    void ReadBeyondAscii(std::string_view line);
    /// Visits the matches of the line that start at `from`, bytes of the text, or behind.
    LineEnding VisitLine(std::size_t from, const MatchVisitor &visit);
    std::size_t UnitAt(std::size_t offset) const;
    std::size_t ByteOf(qsizetype unit) const;
    ByteRange RangeOf(const QRegularExpressionMatch &match, int group) const;
    void ReadGroups(const QRegularExpressionMatch &match);

    QRegularExpression Expression_;
    std::chrono::steady_clock::time_point Deadline_;
    std::size_t LineStart_ = 0;
    std::u16string Units_;            ///< the line
    std::vector<std::size_t> Places_; ///< its bytes by unit, when it is not all ASCII
    std::array<ByteRange, 10> Groups_;
};

MadeSearch MakeExpressionSearch(const FindRequest &request, std::chrono::milliseconds timeLimit);

} // namespace Quillbox
