// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Characters.h"
#include "state/LanguageDefinition.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Quillbox {

/// Bytes of UTF-8 that words are made of: ASCII letters and digits, "_" and bytes from 0x80 up.
constexpr bool IsWordByte(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || IsDigit(code) ||
           code == '_' || code >= 0x80;
}

/// The form in which words are compared: upper case unless the language tells cases apart.
std::string FoldedWord(std::string_view utf8, CaseSensitivity sensitivity);

/// A set of words, each with a mark, made for finding the words of a long text. The
/// words of the text are looked up as they stand there; a QSet would want a text of its own for
/// each.
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
    /// A word without the case that does not count. Up to 16 bytes it says all about the word.
    struct Key {
        std::uint64_t Head; ///< the first 8 bytes
        std::uint64_t Tail; ///< the last 8 bytes of a longer word
        std::size_t Length;
        bool operator==(const Key &) const = default;
    };
    struct Entry {
        Key Word;
        std::size_t Start; ///< in Letters_
        Mark Tag;
    };

    Key KeyOf(std::string_view word, std::size_t readable) const;
    Mark FindKey(const Key &key, std::string_view word, bool isAscii) const;
    bool HasLetters(const Entry &entry, std::string_view word, bool isAscii) const;
    void Insert(std::uint32_t number);

    CaseSensitivity Case_;
    std::uint64_t LetterMask_;         ///< takes the case out of 8 ASCII letters
    std::vector<Entry> Entries_;       ///< numbered from 1
    std::vector<std::uint32_t> Slots_; ///< entry numbers, 0 when empty; at most half full
    std::string Letters_;              ///< folded
};

} // namespace Quillbox
