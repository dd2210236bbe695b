// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace Quillbox {

struct FindRequest {
    QString Term;
    bool MatchCase = false;
    bool WholeWord = false;
    bool IsExpression = false; ///< the term is a regular expression
    bool operator==(const FindRequest &) const = default;
};

/// Bytes of a text, 0-based; `End` is behind the last one.
struct ByteRange {
    std::size_t Start = 0;
    std::size_t End = 0;
    bool operator==(const ByteRange &) const = default;
    bool IsEmpty() const { return Start == End; }
};

struct TextMatch {
    ByteRange Range;
    /// What the groups of a regular expression took, the whole match first; none for a plain term.
    /// Valid during the visit.
    std::span<const ByteRange> Groups;
};

enum class SearchEnd { Complete, TooCostly };

/// Looks for one term in UTF-8 without characters beyond 16 bits. A match lies within one line.
/// `lines` are whole lines with the line ends between them; the last one has none.
class TextSearch {
  public:
    /// False ends the visits.
    using MatchVisitor = std::function<bool(const TextMatch &)>;
    using MatchFilter = std::function<bool(ByteRange)>;

    TextSearch() = default;
    virtual ~TextSearch() = default;
    TextSearch(const TextSearch &) = delete;
    TextSearch &operator=(const TextSearch &) = delete;

    /// Visits the matches that start at `from` or behind in their order. None begins before the
    /// end of the one before, and behind an empty one the next begins a character later.
    virtual SearchEnd VisitMatches(std::string_view lines, std::size_t from,
                                   const MatchVisitor &visit) = 0;

    /// The last match that ends at `to` or before and that `accept` takes; nothing without one and
    /// when the search was given up.
    struct Last {
        SearchEnd End = SearchEnd::Complete;
        std::optional<ByteRange> Match;
    };
    virtual Last FindLast(std::string_view lines, std::size_t to, const MatchFilter &accept) = 0;

    /// Replaces the time limit: it counts from now on.
    virtual void AllowTime(std::chrono::milliseconds timeLimit) = 0;
};

/// Why a term is no regular expression, in Spanish with the place of the mistake.
struct BadExpression {
    QString Reason;
};

using MadeSearch = std::variant<std::unique_ptr<TextSearch>, BadExpression>;

/// The search for `request`, whose term is not empty. A regular expression is given up as too
/// costly when `timeLimit` has passed since now, and when one place alone takes too many steps.
MadeSearch MakeSearch(const FindRequest &request, std::chrono::milliseconds timeLimit);

} // namespace Quillbox
