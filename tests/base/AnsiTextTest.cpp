// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AnsiText.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace Quillbox {

namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    return bytes;
}

std::string RandomBytes(std::mt19937 &random, std::size_t size, int highest) {
    std::uniform_int_distribution<int> byte(0, highest);
    std::string bytes(size, '\0');
    for (char &next : bytes)
        next = static_cast<char>(byte(random));
    return bytes;
}

std::string ToUtf8(std::string_view bytes) {
    std::string utf8;
    AppendAnsiAsUtf8(bytes, utf8);
    return utf8;
}

std::string FromUtf8(std::string_view utf8) {
    std::string bytes;
    AppendUtf8AsAnsi(utf8, bytes);
    return bytes;
}

} // namespace

TEST(AnsiText, GivesEveryByteACharacterOfItsOwn) {
    const auto &codePage = AnsiCodePage();
    EXPECT_EQ(std::set<char16_t>(codePage.begin(), codePage.end()).size(), 256U);
}

TEST(AnsiText, IsWindows1252) {
    const std::pair<int, char16_t> cases[] = {{'A', u'A'},    {0x80, u'€'}, {0x85, u'…'},
                                              {0x8A, u'Š'},   {0x93, u'“'}, {0x9F, u'Ÿ'},
                                              {0xA0, 0x00A0}, {0xD1, u'Ñ'}, {0xFF, u'ÿ'}};
    for (const auto &[byte, character] : cases)
        EXPECT_EQ(AnsiCodePage()[static_cast<std::size_t>(byte)], character) << byte;
}

TEST(AnsiText, KeepsTheFiveBytesWithoutACharacterAsControlCharacters) {
    for (const std::size_t byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(AnsiCodePage()[byte], byte);
}

TEST(AnsiText, KnowsWhichCharactersHaveAByte) {
    for (const char32_t character : {U'\0', U'a', U'ñ', U'€', U'\x81'})
        EXPECT_TRUE(HasAnsiByte(character)) << std::uint32_t{character};
    for (const char32_t character : {U'\x80', U'Ω', U'Ā', U'中', U'😀', char32_t{0xFFFFFFFF}})
        EXPECT_FALSE(HasAnsiByte(character)) << std::uint32_t{character};
}

TEST(AnsiText, ReturnsAll256BytesFromQStringAsTheyWere) {
    const QByteArray bytes = QByteArray::fromStdString(AllBytes());
    EXPECT_EQ(ToAnsi(FromAnsi(bytes)), bytes);
}

TEST(AnsiText, ConvertsSpanishText) {
    EXPECT_EQ(FromAnsi("A\xF1"
                       "adir \x80 \xBFqu\xE9?"),
              QStringLiteral("Añadir € ¿qué?"));
    EXPECT_EQ(ToAnsi(u"Añadir € ¿qué?"), QByteArray("A\xF1"
                                                    "adir \x80 \xBFqu\xE9?"));
}

TEST(AnsiText, WritesAQuestionMarkForEachCharacterThatTheCodePageLacks) {
    EXPECT_EQ(ToAnsi(u"aΩb中c"), "a?b?c");
    EXPECT_EQ(ToAnsi(u"a😀b"), "a?b");
    EXPECT_EQ(ToAnsi(QString(QChar(0xD83D)) + u'x' + QChar(0xDE00)), "?x?");
}

TEST(AnsiText, LeavesAnEmptyTextEmpty) {
    EXPECT_EQ(FromAnsi(""), QString());
    EXPECT_EQ(ToAnsi(u""), QByteArray());
    EXPECT_EQ(ToUtf8(""), "");
    EXPECT_EQ(FromUtf8(""), "");
    EXPECT_EQ(Utf8SizeOfAnsi(""), 0U);
}

TEST(AnsiText, EncodesTheSameUtf8AsQt) {
    const std::string bytes = AllBytes();
    EXPECT_EQ(ToUtf8(bytes), FromAnsi(bytes).toStdString());
}

TEST(AnsiText, ReturnsAll256BytesFromUtf8AsTheyWere) {
    EXPECT_EQ(FromUtf8(ToUtf8(AllBytes())), AllBytes());
}

TEST(AnsiText, ReturnsRandomBytesFromUtf8AsTheyWere) {
    std::mt19937 random(20);
    for (std::size_t size = 0; size < 300; ++size) {
        for (const int highest : {127, 140, 255}) {
            const std::string bytes = RandomBytes(random, size, highest);
            ASSERT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
        }
    }
}

TEST(AnsiText, KnowsTheSizeOfTheUtf8Beforehand) {
    std::mt19937 random(21);
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string bytes = RandomBytes(random, size, 255);
        ASSERT_EQ(Utf8SizeOfAnsi(bytes), ToUtf8(bytes).size());
    }
}

TEST(AnsiText, AppendsToWhatIsThereWithoutAllocatingWhenThereIsRoom) {
    std::string utf8 = "antes ";
    utf8.reserve(6 + Utf8SizeOfAnsi(AllBytes()));
    const char *place = utf8.data();
    AppendAnsiAsUtf8(AllBytes(), utf8);
    EXPECT_EQ(utf8.data(), place);
    EXPECT_EQ(utf8.substr(0, 7), std::string("antes \0", 7));

    std::string bytes = "antes ";
    AppendUtf8AsAnsi("ñ", bytes);
    EXPECT_EQ(bytes, "antes \xF1");
}

TEST(AnsiText, WritesOneQuestionMarkForAUtf8CharacterThatTheCodePageLacks) {
    EXPECT_EQ(FromUtf8("aΩb中c😀d"), "a?b?c?d");
}

TEST(AnsiText, WritesOneQuestionMarkForEachByteThatIsNoUtf8) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"a\x80z", "a?z"},                 // continuation without a lead
        {"a\xC3", "a?"},                   // cut short
        {"a\xE2\x82", "a??"},              //
        {"a\xC3z", "a?z"},                 // lead without continuation
        {"\xC0\x80", "??"},                // overlong NUL
        {"\xC1\xBF", "??"},                // overlong DEL
        {"\xE0\x83\xB1", "???"},           // overlong ñ
        {"\xF0\x82\x82\xAC", "????"},      // overlong euro
        {"\xED\xA0\x80", "???"},           // surrogate
        {"\xF4\x90\x80\x80", "????"},      // above the last character
        {"\xF8\x88\x80\x80\x80", "?????"}, // five bytes
        {"\xFF\xFE", "??"},                //
        {"\xC3\xC3\xB1", "?\xF1"},         // the next character is not swallowed
    };
    for (const auto &[utf8, bytes] : cases)
        EXPECT_EQ(FromUtf8(utf8), bytes) << testing::PrintToString(utf8);
}

TEST(AnsiText, SurvivesRandomUtf8) {
    std::mt19937 random(22);
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string utf8 = RandomBytes(random, size, 255);
        const std::string bytes = FromUtf8(utf8);
        ASSERT_LE(bytes.size(), utf8.size());
        ASSERT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
    }
}

TEST(AnsiText, MakesOneLineOfWhatAFileCanHold) {
    EXPECT_EQ(OneAnsiLine(QStringLiteral("uno\r\ndos\ntres\rcuatro")),
              QStringLiteral("uno dos tres cuatro"));
    EXPECT_EQ(OneAnsiLine(QStringLiteral("ñ€日")), QStringLiteral("ñ€?"));
}

} // namespace Quillbox
