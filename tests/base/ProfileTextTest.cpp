// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ProfileText.h"

#include <gtest/gtest.h>

#include <random>

namespace Quillbox {

namespace {

struct ReadCase {
    const char *What;
    QByteArray Content;
    std::optional<QByteArray> Value; ///< of the key "Clave" in the section "Uno"
};

struct WriteCase {
    const char *What;
    QByteArray Before;
    QByteArray After; ///< with "Clave" in the section "Uno" set to "nuevo"
};

QByteArray RandomProfile(std::mt19937 &random) {
    static const QByteArray pieces[] = {
        "[Uno]", "[",  "]", "Clave", "=",  "\r\n", "\n",   "\r",
        ";",     "\"", "'", " ",     "\t", "x",    "\xFF", QByteArray(1, '\0')};
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    QByteArray content;
    for (int i = 0; i < 40; ++i)
        content += pieces[piece(random)];
    return content;
}

} // namespace

TEST(ProfileText, ReadsValues) {
    const ReadCase cases[] = {
        {"plain", "[Uno]\r\nClave=valor\r\n", "valor"},
        {"LF", "[Uno]\nClave=valor\n", "valor"},
        {"CR", "[Uno]\rClave=valor\r", "valor"},
        {"no line end", "[Uno]\r\nClave=valor", "valor"},
        {"empty text", "", std::nullopt},
        {"no section", "Clave=valor\r\n", std::nullopt},
        {"another section", "[Dos]\r\nClave=valor\r\n", std::nullopt},
        {"no key", "[Uno]\r\nOtra=valor\r\n", std::nullopt},
        {"empty value", "[Uno]\r\nClave=\r\n", ""},
        {"blank value", "[Uno]\r\nClave= \t \r\n", ""},
        {"no equals sign", "[Uno]\r\nClave\r\n", std::nullopt},
        {"letter case", "[uNO]\r\ncLAVE=valor\r\n", "valor"},
        {"blanks around everything", " \t[Uno] \t\r\n \tClave \t= \tvalor \t\r\n", "valor"},
        {"blanks inside the brackets", "[ Uno ]\r\nClave=valor\r\n", "valor"},
        {"text behind the bracket", "[Uno] ; comentario\r\nClave=valor\r\n", "valor"},
        {"blanks inside the value", "[Uno]\r\nClave=dos  palabras\r\n", "dos  palabras"},
        {"double quotes", "[Uno]\r\nClave=\"valor\"\r\n", "valor"},
        {"single quotes", "[Uno]\r\nClave='valor'\r\n", "valor"},
        {"blanks inside quotes", "[Uno]\r\nClave= \" valor \" \r\n", " valor "},
        {"one pair only", "[Uno]\r\nClave=\"\"valor\"\"\r\n", "\"valor\""},
        {"unequal quotes", "[Uno]\r\nClave=\"valor'\r\n", "\"valor'"},
        {"a lone quote", "[Uno]\r\nClave=\"\r\n", "\""},
        {"an empty pair", "[Uno]\r\nClave=\"\"\r\n", ""},
        {"quotes inside", "[Uno]\r\nClave=a \"b\"\r\n", "a \"b\""},
        {"equals sign in the value", "[Uno]\r\nClave=a=b\r\n", "a=b"},
        {"semicolon in the value", "[Uno]\r\nClave=a;b\r\n", "a;b"},
        {"comment", "[Uno]\r\n;Clave=no\r\n ;Clave=no\r\nClave=valor\r\n", "valor"},
        {"commented header", ";[Uno]\r\nClave=valor\r\n", std::nullopt},
        {"first key counts", "[Uno]\r\nClave=1\r\nClave=2\r\n", "1"},
        {"first section counts", "[Uno]\r\n[Dos]\r\n[Uno]\r\nClave=2\r\n", std::nullopt},
        {"longer names", "[Uno2]\r\nClave=2\r\n[Uno]\r\nClave2=2\r\nClave=1\r\n", "1"},
        {"no closing bracket", "[Uno\r\nClave=valor\r\n", std::nullopt},
        {"NUL", QByteArray("[Uno]\r\nClave=a\0b\r\n", 19), QByteArray("a\0b", 3)},
    };
    for (const ReadCase &read : cases)
        EXPECT_EQ(FindProfileValue(read.Content, "Uno", "Clave"), read.Value) << read.What;
}

TEST(ProfileText, ComparesAccentedNamesWithoutRegardToCase) {
    const QByteArray content = "[A\xD1O]\r\n\xC1\xFF=valor\r\n";
    EXPECT_EQ(FindProfileValue(content, "a\xF1o", "\xE1\x9F"), "valor");
    EXPECT_EQ(FindProfileValue(content, "ano", "\xE1\x9F"), std::nullopt);
}

TEST(ProfileText, IgnoresBlanksAroundTheNamesThatAreAskedFor) {
    EXPECT_EQ(FindProfileValue("[Uno]\r\nClave=valor\r\n", " Uno ", "\tClave "), "valor");
}

TEST(ProfileText, FindsNoKeyInAComment) {
    EXPECT_EQ(FindProfileValue("[Uno]\r\n;Clave=valor\r\n", "Uno", ";Clave"), std::nullopt);
}

TEST(ProfileText, WritesValues) {
    const WriteCase cases[] = {
        {"empty text", "", "[Uno]\r\nClave=nuevo\r\n"},
        {"replaced in place", "[Uno]\r\nA=1\r\nClave=viejo\r\nB=2\r\n",
         "[Uno]\r\nA=1\r\nClave=nuevo\r\nB=2\r\n"},
        {"keeps the spelling", "[UNO]\r\n  CLAVE = viejo \r\n", "[UNO]\r\nCLAVE=nuevo\r\n"},
        {"keeps LF", "[Uno]\nClave=viejo\n", "[Uno]\nClave=nuevo\n"},
        {"keeps CR", "[Uno]\rClave=viejo\rB=2", "[Uno]\rClave=nuevo\rB=2"},
        {"keeps a missing line end", "[Uno]\r\nClave=viejo", "[Uno]\r\nClave=nuevo"},
        {"quotes go", "[Uno]\r\nClave=\"viejo\"\r\n", "[Uno]\r\nClave=nuevo\r\n"},
        {"first key", "[Uno]\r\nClave=1\r\nClave=2\r\n", "[Uno]\r\nClave=nuevo\r\nClave=2\r\n"},
        {"new key", "[Uno]\r\nA=1\r\n[Dos]\r\nB=2\r\n",
         "[Uno]\r\nA=1\r\nClave=nuevo\r\n[Dos]\r\nB=2\r\n"},
        {"new key before blank lines", "[Uno]\r\nA=1\r\n\r\n \t\r\n[Dos]\r\n",
         "[Uno]\r\nA=1\r\nClave=nuevo\r\n\r\n \t\r\n[Dos]\r\n"},
        {"new key behind a comment", "[Uno]\r\nA=1\r\n;fin\r\n\r\n",
         "[Uno]\r\nA=1\r\n;fin\r\nClave=nuevo\r\n\r\n"},
        {"new key behind the header", "[Uno]\r\n\r\n[Dos]\r\n",
         "[Uno]\r\nClave=nuevo\r\n\r\n[Dos]\r\n"},
        {"new key without line end", "[Uno]\r\nA=1", "[Uno]\r\nA=1\r\nClave=nuevo\r\n"},
        {"header without line end", "[Uno]", "[Uno]\r\nClave=nuevo\r\n"},
        {"new key among LF", "[Uno]\nA=1\n", "[Uno]\nA=1\nClave=nuevo\n"},
        {"new key among both", "[Uno]\nA=1\r\n", "[Uno]\nA=1\r\nClave=nuevo\r\n"},
        {"new section", "[Dos]\r\nClave=2\r\n", "[Dos]\r\nClave=2\r\n[Uno]\r\nClave=nuevo\r\n"},
        {"new section without line end", "[Dos]\r\nB=2",
         "[Dos]\r\nB=2\r\n[Uno]\r\nClave=nuevo\r\n"},
        {"new section among LF", "[Dos]\nB=2", "[Dos]\nB=2\n[Uno]\nClave=nuevo\n"},
        {"comment is no key", "[Uno]\r\n;Clave=viejo\r\n",
         "[Uno]\r\n;Clave=viejo\r\nClave=nuevo\r\n"},
        {"lines of no meaning", "\xFF\xFE\r\n[Uno\r\n[Uno]x\r\nnada\r\nClave=\r\n\xF1",
         "\xFF\xFE\r\n[Uno\r\n[Uno]x\r\nnada\r\nClave=nuevo\r\n\xF1"},
        {"NUL", QByteArray("a\0b\r\n[Uno]\r\nClave=\0\r\n", 22),
         QByteArray("a\0b\r\n[Uno]\r\nClave=nuevo\r\n", 26)},
    };
    for (const WriteCase &write : cases)
        EXPECT_EQ(WithProfileValue(write.Before, "Uno", "Clave", "nuevo"), write.After)
            << write.What;
}

TEST(ProfileText, WritesAnEmptyValue) {
    EXPECT_EQ(WithProfileValue("[Uno]\r\nClave=viejo\r\n", "Uno", "Clave", ""),
              "[Uno]\r\nClave=\r\n");
}

TEST(ProfileText, TakesVeryLongValues) {
    const QByteArray value(5'000'000, 'x');
    const QByteArray content = WithProfileValue("[Uno]\r\nA=1\r\n", "Uno", "Clave", value);
    EXPECT_EQ(FindProfileValue(content, "Uno", "Clave"), value);
    EXPECT_EQ(FindProfileValue(content, "Uno", "A"), "1");
}

TEST(ProfileText, ReadsBackWhatItHasWrittenIntoAnyText) {
    std::mt19937 random(5);
    for (int i = 0; i < 5000; ++i) {
        const QByteArray before = RandomProfile(random);
        const QByteArray after = WithProfileValue(before, "Uno", "Clave", "nuevo");
        ASSERT_EQ(FindProfileValue(after, "Uno", "Clave"), "nuevo") << before.toHex().data();
        ASSERT_EQ(WithProfileValue(after, "Uno", "Clave", "nuevo"), after) << before.toHex().data();
    }
}

TEST(ProfileText, KeepsAllOtherBytesOfAnyText) {
    std::mt19937 random(6);
    for (int i = 0; i < 5000; ++i) {
        const QByteArray before = RandomProfile(random);
        const QByteArray after = WithProfileValue(before, "Nueva", "Clave", "nuevo");
        ASSERT_TRUE(after.startsWith(before)) << before.toHex().data();
        ASSERT_LE(after.size(), before.size() + 26) << before.toHex().data();
    }
}

} // namespace Quillbox
