// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AnsiText.h"

#include "base/Utf8.h"

#include <cstdint>
#include <cstring>

namespace Quillbox {

namespace {

/// Everything that the conversions look up, made once from the code page.
struct ConversionTables {
    std::array<EncodedCharacter, 256> Utf8;
    std::array<char, 0x10000> Bytes; ///< by character; 0 where the code page has no byte
};

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
            const EncodedCharacter &character = characters[static_cast<unsigned char>(bytes[0])];
            utf8.append(character.Bytes.data(), character.Size);
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
