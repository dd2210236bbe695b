// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AnsiText.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace Quillbox {

namespace {

/// The UTF-8 form of one byte.
struct Utf8Character {
    char Units[3];
    std::uint8_t Size;
};

/// Everything that the conversions look up, made once from the code page.
struct ConversionTables {
    std::array<Utf8Character, 256> Utf8;
    std::array<char, 0x10000> Bytes; ///< by character; 0 where the code page has no byte
};

Utf8Character EncodeUtf8(char16_t character) {
    const auto unit = [](int value) { return static_cast<char>(value); };
    if (character < 0x80)
        return {{unit(character)}, 1};
    if (character < 0x800)
        return {{unit(0xC0 | (character >> 6)), unit(0x80 | (character & 0x3F))}, 2};
    return {{unit(0xE0 | (character >> 12)), unit(0x80 | ((character >> 6) & 0x3F)),
             unit(0x80 | (character & 0x3F))},
            3};
}

ConversionTables MakeTables() {
    ConversionTables tables{};
    const auto &codePage = AnsiCodePage();
    for (std::size_t byte = 0; byte < codePage.size(); ++byte) {
        tables.Utf8[byte] = EncodeUtf8(codePage[byte]);
        tables.Bytes[codePage[byte]] = static_cast<char>(byte);
    }
    return tables;
}

const ConversionTables &Tables() {
    static const ConversionTables tables = MakeTables();
    return tables;
}

/// How many ASCII bytes `text` begins with. Source texts are nearly all ASCII, so this decides how
/// fast a file loads and saves.
std::size_t AsciiRunLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & highBits) != 0)
            break;
    }
    while (length < text.size() && (text[length] & 0x80) == 0)
        ++length;
    return length;
}

struct DecodedCharacter {
    char32_t Value;
    std::size_t Size; ///< 0 when the bytes are no UTF-8
};

/// The character that `text` begins with; `text` is not empty.
DecodedCharacter DecodeUtf8(std::string_view text) {
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[0]);
    const auto size = static_cast<std::size_t>(std::countl_one(lead));
    if (size < 2 || size > 4 || size > text.size())
        return {0, 0};
    char32_t value = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        const auto unit = static_cast<unsigned char>(text[i]);
        if ((unit & 0xC0) != 0x80)
            return {0, 0};
        value = (value << 6) | (unit & 0x3F);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < smallest[size] || value > 0x10FFFF || surrogate)
        return {0, 0};
    return {value, size};
}

char AnsiByteOr(char32_t character, char replacement) {
    return HasAnsiByte(character) ? Tables().Bytes[character] : replacement;
}

} // namespace

bool HasAnsiByte(char32_t character) {
    return character < 0x10000 && (Tables().Bytes[character] != 0 || character == 0);
}

QString FromAnsi(QByteArrayView bytes) {
    const auto &codePage = AnsiCodePage();
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *next = text.data();
    for (const char byte : bytes)
        *next++ = QChar(codePage[static_cast<unsigned char>(byte)]);
    return text;
}

QByteArray ToAnsi(QStringView text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        bytes.append(AnsiByteOr(text[i].unicode(), '?'));
        if (pair)
            ++i;
    }
    return bytes;
}

std::size_t Utf8SizeOfAnsi(std::string_view bytes) {
    const auto &utf8 = Tables().Utf8;
    std::size_t size = 0;
    while (!bytes.empty()) {
        const std::size_t run = AsciiRunLength(bytes);
        size += run;
        bytes.remove_prefix(run);
        for (; !bytes.empty() && (bytes[0] & 0x80) != 0; bytes.remove_prefix(1))
            size += utf8[static_cast<unsigned char>(bytes[0])].Size;
    }
    return size;
}

QString OneAnsiLine(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    text.replace(u'\r', u' ').replace(u'\n', u' ');
    return FromAnsi(ToAnsi(text));
}

void AppendAnsiAsUtf8(std::string_view bytes, std::string &utf8) {
    const auto &characters = Tables().Utf8;
    while (!bytes.empty()) {
        const std::size_t run = AsciiRunLength(bytes);
        utf8.append(bytes.substr(0, run));
        bytes.remove_prefix(run);
        for (; !bytes.empty() && (bytes[0] & 0x80) != 0; bytes.remove_prefix(1)) {
            const Utf8Character &character = characters[static_cast<unsigned char>(bytes[0])];
            utf8.append(character.Units, character.Size);
        }
    }
}

void AppendUtf8AsAnsi(std::string_view utf8, std::string &bytes) {
    while (!utf8.empty()) {
        const std::size_t run = AsciiRunLength(utf8);
        bytes.append(utf8.substr(0, run));
        utf8.remove_prefix(run);
        while (!utf8.empty() && (utf8[0] & 0x80) != 0) {
            const DecodedCharacter character = DecodeUtf8(utf8);
            const bool valid = character.Size != 0;
            bytes.push_back(valid ? AnsiByteOr(character.Value, '?') : '?');
            utf8.remove_prefix(valid ? character.Size : 1);
        }
    }
}

} // namespace Quillbox
