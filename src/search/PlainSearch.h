// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/TextSearch.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Quillbox {

/// True when the range begins or ends between two bytes that words are made of.
bool CutsAWord(std::string_view text, ByteRange range);

/// Looks for a term as it stands. It looks at the byte where a match would end and skips as many as
/// that byte allows, so that most of the text is not looked at. Qt's own searches
/// want the whole text as a QString, or know no letter case.
class PlainSearch final : public TextSearch {
  public:
    explicit PlainSearch(const FindRequest &request);

    SearchEnd VisitMatches(std::string_view lines, std::size_t from,
                           const MatchVisitor &visit) override;
    Last FindLast(std::string_view lines, std::size_t to, const MatchFilter &accept) override;
    /// A plain term is never given up.
    void AllowTime(std::chrono::milliseconds) override {}

  private:
    /// A character of the term: the bytes of each form that counts as the same. All forms have the
    /// same length, as the cases of a letter have in every code page of one byte a character.
    struct Letter {
        std::uint32_t Length;
        std::vector<std::uint32_t> Forms;
    };

    static Letter LetterOf(char32_t character, bool matchCase);
    void PrepareSkips();
    bool IsMatchAt(std::string_view text, std::size_t start) const;
    /// The start of the first match that starts at `from` or behind.
    std::size_t Find(std::string_view text, std::size_t from) const;
    std::size_t FindExactly(std::string_view text, std::size_t from) const;

    bool WholeWord_;
    bool IsExact_;      ///< every character has one form
    std::string Bytes_; ///< one form of the term
    std::vector<Letter> Letters_;
    std::array<std::uint32_t, 256> Skips_{}; ///< by the byte where a match would end
    std::array<bool, 256> MayEnd_{};         ///< by the last byte of a match
    std::array<bool, 256> MayStart_{};       ///< by the first byte of a match
};

} // namespace Quillbox
