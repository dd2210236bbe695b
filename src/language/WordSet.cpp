// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/WordSet.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace Quillbox {

namespace {

constexpr std::size_t FewestSlots = 16;

/// Clears the bit in which the cases of ASCII letters differ. Among the ASCII bytes that words are
/// made of, no two others become equal by it.
constexpr unsigned CaseMask = 0xDF;

std::uint64_t EightBytes(const char *bytes) {
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

constexpr bool IsLittleEndian = std::endian::native == std::endian::little;
constexpr std::uint64_t EveryByte = 0x0101010101010101U;

/// The first `count` (0 to 7) of the 8 bytes of `value` as they lie in memory, the others 0.
constexpr std::uint64_t FirstBytes(std::uint64_t value, std::size_t count) {
    const std::uint64_t lowBytes = (std::uint64_t{1} << (8 * count)) - 1;
    return value & (IsLittleEndian ? lowBytes : ~(~std::uint64_t{0} >> (8 * count)));
}

/// For each byte what it tells about a word: 0 that it is none of its bytes, else its high bit
/// that the word is not all ASCII.
constexpr std::array<std::uint8_t, 256> WordByteTable = [] {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code)
        if (IsWordByte(static_cast<char>(code)))
            table[code] = code < 0x80 ? 0x01 : 0x81;
    return table;
}();

struct WordBeginning {
    std::size_t Length;
    bool IsAscii;
};

/// The word bytes that `text` begins with.
WordBeginning ReadWordBytes(std::string_view text) {
    const char *byte = text.data();
    const char *const end = byte + text.size();
    std::uint8_t seen = 0;
    for (; byte != end; ++byte) {
        const std::uint8_t told = WordByteTable[static_cast<unsigned char>(*byte)];
        if (told == 0)
            break;
        seen |= told;
    }
    return {static_cast<std::size_t>(byte - text.data()), seen < 0x80};
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

template <class Key>
std::uint64_t HashOf(const Key &key) {
    const std::uint64_t mixed = (key.Head ^ std::rotl(key.Tail, 29)) + key.Length;
    const std::uint64_t product = mixed * 0x9E3779B97F4A7C15U;
    return product ^ (product >> 32);
}

} // namespace

std::string FoldedWord(std::string_view utf8, CaseSensitivity sensitivity) {
    if (sensitivity == CaseSensitivity::On)
        return std::string(utf8);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))
        .toUpper()
        .toStdString();
}

WordSet::WordSet(CaseSensitivity sensitivity)
    : Case_(sensitivity)
    , LetterMask_(sensitivity == CaseSensitivity::On ? ~std::uint64_t{0} : EveryByte * CaseMask)
    , Slots_(FewestSlots) {}

/// `readable` says how many bytes may be read where `word` begins.
inline WordSet::Key WordSet::KeyOf(std::string_view word, std::size_t readable) const {
    const std::size_t length = word.size();
    if (length >= 8)
        return {EightBytes(word.data()) & LetterMask_,
                EightBytes(word.data() + length - 8) & LetterMask_, length};
    if (readable >= 8)
        return {FirstBytes(EightBytes(word.data()), length) & LetterMask_, 0, length};
    std::uint64_t head = 0;
    std::memcpy(&head, word.data(), length);
    return {head & LetterMask_, 0, length};
}

inline WordSet::Mark WordSet::FindKey(const Key &key, std::string_view word, bool isAscii) const {
    const std::size_t last = Slots_.size() - 1;
    for (std::size_t index = HashOf(key) & last; Slots_[index] != 0; index = (index + 1) & last) {
        const Entry &entry = Entries_[Slots_[index] - 1];
        // Up to 16 bytes the keys hold all of an ASCII word; among other bytes the mask may have
        // made different ones equal.
        if (entry.Word == key &&
            ((isAscii && word.size() <= 16) || HasLetters(entry, word, isAscii)))
            return entry.Tag;
    }
    return NoMark;
}

void WordSet::Add(std::string_view word, Mark mark) {
    const std::string folded = FoldedWord(word, Case_);
    if (!std::all_of(folded.begin(), folded.end(), IsWordByte) || folded.empty() ||
        Find(folded) != NoMark)
        return;
    Entries_.push_back({KeyOf(folded, folded.size()), Letters_.size(), mark});
    Letters_ += folded;
    if (Entries_.size() * 2 > Slots_.size()) {
        Slots_.assign(Slots_.size() * 2, 0);
        for (std::uint32_t number = 1; number < Entries_.size(); ++number)
            Insert(number);
    }
    Insert(static_cast<std::uint32_t>(Entries_.size()));
}

WordSet::ReadWord WordSet::Read(std::string_view text) const {
    const WordBeginning beginning = ReadWordBytes(text);
    const std::string_view word = text.substr(0, beginning.Length);
    if (word.empty())
        return {0, NoMark};
    if (beginning.IsAscii || Case_ == CaseSensitivity::On)
        return {word.size(), FindKey(KeyOf(word, text.size()), word, beginning.IsAscii)};
    const std::string folded = FoldedWord(word, Case_);
    return {word.size(), FindKey(KeyOf(folded, folded.size()), folded, IsAscii(folded))};
}

WordSet::Mark WordSet::Find(std::string_view word) const {
    const ReadWord found = Read(word);
    return found.Length == word.size() ? found.Tag : NoMark;
}

/// For words whose keys are equal: whether they are the same.
bool WordSet::HasLetters(const Entry &entry, std::string_view word, bool isAscii) const {
    const auto mask = static_cast<std::uint8_t>(isAscii ? LetterMask_ : ~std::uint64_t{0});
    return std::equal(word.begin(), word.end(), Letters_.data() + entry.Start,
                      [mask](char one, char other) { return ((one ^ other) & mask) == 0; });
}

void WordSet::Insert(std::uint32_t number) {
    const std::size_t last = Slots_.size() - 1;
    std::size_t index = HashOf(Entries_[number - 1].Word) & last;
    while (Slots_[index] != 0)
        index = (index + 1) & last;
    Slots_[index] = number;
}

} // namespace Quillbox
