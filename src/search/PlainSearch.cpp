// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/PlainSearch.h"

#include "base/AnsiText.h"
#include "base/Utf8.h"
#include "language/WordSet.h"

#include <QList>

#include <algorithm>
#include <cstring>

namespace Quillbox {
namespace {

/// The bytes of UTF-8 in a number, the first byte in the lowest bits.
struct PackedBytes {
    std::uint32_t Bytes;
    std::uint32_t Length;
};

std::size_t ByteAt(std::uint32_t packed, std::size_t index) {
    return (packed >> (8 * index)) & 0xFFU;
}

std::uint32_t Pack(const char *bytes, std::size_t length) {
    std::uint32_t packed = 0;
    for (std::size_t index = 0; index < length; ++index)
        packed |= std::uint32_t{static_cast<unsigned char>(bytes[index])} << (8 * index);
    return packed;
}

PackedBytes Utf8Of(char32_t character) {
    const EncodedCharacter encoded = EncodeUtf8(character);
    return {Pack(encoded.Bytes.data(), encoded.Size), static_cast<std::uint32_t>(encoded.Size)};
}

bool StaysInAWord(std::string_view text, std::size_t place) {
    return place > 0 && place < text.size() && IsWordByte(text[place - 1]) &&
           IsWordByte(text[place]);
}

} // namespace

bool CutsAWord(std::string_view text, ByteRange range) {
    return StaysInAWord(text, range.Start) || StaysInAWord(text, range.End);
}

PlainSearch::PlainSearch(const FindRequest &request)
    : WholeWord_(request.WholeWord) {
    for (const char32_t character : request.Term.toUcs4())
        Letters_.push_back(LetterOf(character, request.MatchCase));
    IsExact_ = std::all_of(Letters_.begin(), Letters_.end(),
                           [](const Letter &letter) { return letter.Forms.size() == 1; });
    for (const Letter &letter : Letters_)
        for (std::size_t index = 0; index < letter.Length; ++index)
            Bytes_ += static_cast<char>(ByteAt(letter.Forms.front(), index));
    PrepareSkips();
}

PlainSearch::Letter PlainSearch::LetterOf(char32_t character, bool matchCase) {
    const PackedBytes itself = Utf8Of(character);
    Letter letter{itself.Length, {itself.Bytes}};
    if (matchCase)
        return letter;
    const char32_t folded = QChar::toCaseFolded(character);
    for (const char16_t other : AnsiCodePage()) {
        const PackedBytes form = Utf8Of(other);
        if (other != character && form.Length == itself.Length &&
            QChar::toCaseFolded(char32_t{other}) == folded)
            letter.Forms.push_back(form.Bytes);
    }
    return letter;
}

void PlainSearch::PrepareSkips() {
    Skips_.fill(static_cast<std::uint32_t>(Bytes_.size()));
    std::size_t place = 0;
    for (const Letter &letter : Letters_)
        for (std::size_t index = 0; index < letter.Length; ++index, ++place)
            for (const std::uint32_t form : letter.Forms) {
                const std::size_t byte = ByteAt(form, index);
                if (place == 0)
                    MayStart_[byte] = true;
                if (place + 1 == Bytes_.size())
                    MayEnd_[byte] = true;
                else
                    Skips_[byte] = static_cast<std::uint32_t>(Bytes_.size() - 1 - place);
            }
}

bool PlainSearch::IsMatchAt(std::string_view text, std::size_t start) const {
    const char *bytes = text.data() + start;
    if (IsExact_)
        return std::memcmp(bytes, Bytes_.data(), Bytes_.size()) == 0;
    for (const Letter &letter : Letters_) {
        const std::uint32_t found = Pack(bytes, letter.Length);
        if (std::find(letter.Forms.begin(), letter.Forms.end(), found) == letter.Forms.end())
            return false;
        bytes += letter.Length;
    }
    return true;
}

std::size_t PlainSearch::FindExactly(std::string_view text, std::size_t from) const {
    const void *found = std::memchr(text.data() + from, Bytes_.front(), text.size() - from);
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char *>(found) - text.data());
}

std::size_t PlainSearch::Find(std::string_view text, std::size_t from) const {
    const std::size_t length = Bytes_.size();
    if (length == 0 || text.size() < length || from > text.size() - length)
        return std::string_view::npos;
    if (length == 1 && IsExact_)
        return FindExactly(text, from);
    for (std::size_t last = from + length - 1; last < text.size();) {
        const auto byte = static_cast<unsigned char>(text[last]);
        if (MayEnd_[byte] && IsMatchAt(text, last + 1 - length))
            return last + 1 - length;
        last += Skips_[byte];
    }
    return std::string_view::npos;
}

SearchEnd PlainSearch::VisitMatches(std::string_view lines, std::size_t from,
                                    const MatchVisitor &visit) {
    for (std::size_t start = Find(lines, from); start != std::string_view::npos;) {
        const ByteRange range{start, start + Bytes_.size()};
        const bool counts = !WholeWord_ || !CutsAWord(lines, range);
        if (counts && !visit({range, {}}))
            break;
        start = Find(lines, counts ? range.End : start + 1);
    }
    return SearchEnd::Complete;
}

TextSearch::Last PlainSearch::FindLast(std::string_view lines, std::size_t to,
                                       const MatchFilter &accept) {
    const std::size_t length = Bytes_.size();
    const std::size_t end = std::min(to, lines.size());
    if (length == 0 || end < length)
        return {};
    for (std::size_t start = end - length + 1; start-- > 0;) {
        const ByteRange range{start, start + length};
        if (MayStart_[static_cast<unsigned char>(lines[start])] && IsMatchAt(lines, start) &&
            (!WholeWord_ || !CutsAWord(lines, range)) && accept(range))
            return {SearchEnd::Complete, range};
    }
    return {};
}

} // namespace Quillbox
