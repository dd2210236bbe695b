// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/WordSet.h"

#include <algorithm>
#include <array>

namespace Quillbox {

namespace {

constexpr std::uint32_t HashStart = 2166136261U;
constexpr std::uint32_t HashFactor = 16777619U;

constexpr char UpperCase(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - ('a' - 'A')) : byte;
}

/// Every byte in the form in which it is compared; 0 for a byte that ends a word.
constexpr std::array<char, 256> FoldTable(CaseSensitivity sensitivity) {
    std::array<char, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        const char byte = static_cast<char>(code);
        if (IsWordByte(byte))
            table[code] = sensitivity == CaseSensitivity::On ? byte : UpperCase(byte);
    }
    return table;
}

constexpr std::array<char, 256> ExactFolding = FoldTable(CaseSensitivity::On);
constexpr std::array<char, 256> UpperFolding = FoldTable(CaseSensitivity::Off);

constexpr const std::array<char, 256> &FoldingFor(CaseSensitivity sensitivity) {
    return sensitivity == CaseSensitivity::On ? ExactFolding : UpperFolding;
}

constexpr std::uint32_t AddToHash(std::uint32_t hash, char folded) {
    return (hash ^ static_cast<unsigned char>(folded)) * HashFactor;
}

std::uint32_t HashOf(std::string_view folded) {
    std::uint32_t hash = HashStart;
    for (const char letter : folded)
        hash = AddToHash(hash, letter);
    return hash;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace

std::string FoldedWord(std::string_view utf8, CaseSensitivity sensitivity) {
    std::string folded(utf8);
    if (sensitivity == CaseSensitivity::On)
        return folded;
    if (!IsAscii(utf8))
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))
            .toUpper()
            .toStdString();
    std::transform(folded.begin(), folded.end(), folded.begin(), UpperCase);
    return folded;
}

WordSet::WordSet(CaseSensitivity sensitivity)
    : Case_(sensitivity)
    , Slots_(16) {}

void WordSet::Add(std::string_view word, Mark mark) {
    const std::string folded = FoldedWord(word, Case_);
    if (folded.empty() || FindFolded(folded) != NoMark)
        return;
    if ((Count_ + 1) * 2 > Slots_.size())
        Grow();
    const std::uint32_t hash = HashOf(folded);
    Insert({hash, static_cast<std::uint32_t>(Letters_.size()),
            static_cast<std::uint32_t>(folded.size()), mark});
    Letters_ += folded;
    ++Count_;
}

WordSet::ReadWord WordSet::Read(std::string_view text) const {
    const std::array<char, 256> &folding = FoldingFor(Case_);
    std::uint32_t hash = HashStart;
    unsigned char highBits = 0;
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const auto code = static_cast<unsigned char>(text[length]);
        const char folded = folding[code];
        if (folded == 0)
            break;
        hash = AddToHash(hash, folded);
        highBits |= code;
    }
    const std::string_view word = text.substr(0, length);
    if (highBits >= 0x80 && Case_ == CaseSensitivity::Off)
        return {length, FindFolded(FoldedWord(word, Case_))};
    return {length, FindHashed(word, hash)};
}

WordSet::Mark WordSet::Find(std::string_view word) const {
    const ReadWord found = Read(word);
    return found.Length == word.size() ? found.Tag : NoMark;
}

WordSet::Mark WordSet::FindFolded(std::string_view folded) const {
    return FindHashed(folded, HashOf(folded));
}

WordSet::Mark WordSet::FindHashed(std::string_view word, std::uint32_t hash) const {
    const std::array<char, 256> &folding = FoldingFor(Case_);
    const auto matches = [&](const Slot &slot) {
        return slot.Hash == hash && slot.Length == word.size() &&
               std::equal(word.begin(), word.end(), Letters_.begin() + slot.Start,
                          [&](char byte, char letter) {
                              return folding[static_cast<unsigned char>(byte)] == letter;
                          });
    };
    const std::size_t last = Slots_.size() - 1;
    for (std::size_t index = hash & last; Slots_[index].Tag != NoMark; index = (index + 1) & last)
        if (matches(Slots_[index]))
            return Slots_[index].Tag;
    return NoMark;
}

void WordSet::Insert(const Slot &slot) {
    const std::size_t last = Slots_.size() - 1;
    std::size_t index = slot.Hash & last;
    while (Slots_[index].Tag != NoMark)
        index = (index + 1) & last;
    Slots_[index] = slot;
}

void WordSet::Grow() {
    std::vector<Slot> old(Slots_.size() * 2);
    old.swap(Slots_);
    for (const Slot &slot : old)
        if (slot.Tag != NoMark)
            Insert(slot);
}

} // namespace Quillbox
