// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/LanguageDefinition.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Quillbox {

/// Bytes of UTF-8 that words are made of: ASCII letters and digits, "_" and bytes from 0x80 up.
constexpr bool IsWordByte(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') ||
           (code >= '0' && code <= '9') || code == '_' || code >= 0x80;
}

/// The form in which words are compared: upper case unless the language tells cases apart.
std::string FoldedWord(std::string_view utf8, CaseSensitivity sensitivity);

/// A set of words, each with a mark, made for finding the words of a long text.
class WordSet {
  public:
    using Mark = std::uint8_t;
    static constexpr Mark NoMark = 0;

    struct ReadWord {
        std::size_t Length; ///< in bytes
        Mark Tag;           ///< NoMark for a word that is not in the set
    };

    explicit WordSet(CaseSensitivity sensitivity);

    /// A word that is there already keeps its mark. `mark` is not NoMark. A word with a byte that
    /// words are not made of is never found.
    void Add(std::string_view word, Mark mark);
    /// Reads the word bytes that `text` begins with. Allocates nothing for ASCII words.
    ReadWord Read(std::string_view text) const;
    /// The mark of `word`.
    Mark Find(std::string_view word) const;

  private:
    struct Slot {
        std::uint32_t Hash;
        std::uint32_t Start; ///< in Letters_
        std::uint32_t Length;
        Mark Tag = NoMark;
    };

    Mark FindFolded(std::string_view folded) const;
    Mark FindHashed(std::string_view word, std::uint32_t hash) const;
    void Insert(const Slot &slot);
    void Grow();

    CaseSensitivity Case_;
    std::vector<Slot> Slots_; ///< a power of two, at most half full, probed linearly
    std::size_t Count_ = 0;
    std::string Letters_; ///< folded
};

} // namespace Quillbox
