// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/DataFile.h"

#include <QList>
#include <QSet>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// The lines of a word file; the end mark of the last line does not open another one.
QList<QByteArray> Lines(const QString &name) {
    QList<QByteArray> lines = ReadDataFile(name).split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (QByteArray &line : lines)
        if (line.endsWith('\r'))
            line.chop(1);
    return lines;
}

/// What stands between the form of use and the description in a help line.
constexpr QByteArrayView Separator = " - ";

QByteArray FormOf(const QByteArray &help) { return help.left(help.indexOf(Separator)); }

QByteArray DescriptionOf(const QByteArray &help) {
    return help.contains(Separator) ? help.mid(help.indexOf(Separator) + Separator.size())
                                    : QByteArray();
}

/// An operator between two values is shown where it is written, between them.
bool StandsBetweenValues(const QByteArray &keyword) {
    static const QList<QByteArray> operators{"Mod", "And", "Or", "Xor", "Shl", "Shr", "Sar"};
    return operators.contains(keyword);
}

bool IsLetterOrDigit(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= 'a' && byte <= 'z') || static_cast<unsigned char>(byte) >= 128;
}

bool BeginsWithWord(const QByteArray &text, const QByteArray &word) {
    return text.startsWith(word) &&
           (text.size() == word.size() || !IsLetterOrDigit(text[word.size()]));
}

QList<QByteArray> WordsOf(const QByteArray &text) {
    QList<QByteArray> words{QByteArray()};
    for (const char byte : text)
        if (IsLetterOrDigit(byte))
            words.last() += byte;
        else if (!words.last().isEmpty())
            words.append(QByteArray());
    return words;
}

TEST(WordFiles, FillFiveHundredNinetyFiveOfTheSixHundredSlots) {
    EXPECT_EQ(Lines("Keywords.txt").size(), 595);
    EXPECT_EQ(Lines("QuickHelp.txt").size(), 595);
}

TEST(WordFiles, PairKeywordAndHelpByPosition) {
    const QList<QByteArray> keywords = Lines("Keywords.txt");
    const QList<QByteArray> help = Lines("QuickHelp.txt");
    ASSERT_EQ(keywords.size(), help.size());
    for (qsizetype i = 0; i < keywords.size(); ++i) {
        const bool pairs = StandsBetweenValues(keywords[i])
                               ? FormOf(help[i]) == "a " + keywords[i] + " b"
                               : BeginsWithWord(FormOf(help[i]), keywords[i]);
        EXPECT_TRUE(pairs) << "line " << i + 1 << ": " << keywords[i].constData() << " / "
                           << help[i].constData();
    }
}

TEST(QuickHelpLines, SayInWordsWhatTheKeywordDoes) {
    for (const QByteArray &help : Lines("QuickHelp.txt")) {
        EXPECT_EQ(help.count(Separator), 1) << help.constData();
        EXPECT_GE(WordsOf(DescriptionOf(help)).size(), 3) << help.constData();
    }
}

TEST(QuickHelpLines, DescribeNoTwoKeywordsAlike) {
    QSet<QByteArray> seen;
    for (const QByteArray &help : Lines("QuickHelp.txt")) {
        EXPECT_FALSE(seen.contains(DescriptionOf(help))) << help.constData();
        seen.insert(DescriptionOf(help));
    }
}

TEST(QuickHelpLines, FitIntoTheStatusBar) {
    for (const QByteArray &help : Lines("QuickHelp.txt"))
        EXPECT_LE(help.size(), 110) << help.constData();
}

// The whole line is also the panel's tool tip, which takes a text with tags for formatted text.
TEST(QuickHelpLines, HoldNothingThatAToolTipTakesForATag) {
    for (const QByteArray &help : Lines("QuickHelp.txt"))
        EXPECT_FALSE(help.contains('<') || help.contains('&')) << help.constData();
}

TEST(QuickHelpLines, AreSpanishToTheNamesOfTheParameters) {
    const QList<QByteArray> english{
        "the",    "of",     "returns", "width",  "height", "depth",   "entity", "string",
        "file",   "name",   "value",   "stream", "buffer", "angle",   "camera", "texture",
        "mesh",   "brush",  "parent",  "image",  "sound",  "surface", "frame",  "filename",
        "source", "target", "index",   "expr",   "label",  "size",    "count",  "player"};
    for (const QByteArray &help : Lines("QuickHelp.txt"))
        for (const QByteArray &word : WordsOf(help))
            EXPECT_FALSE(english.contains(word)) << help.constData();
}

TEST(WordFiles, NameNoKeywordTwiceInUpperCase) {
    QSet<QByteArray> seen;
    for (const QByteArray &keyword : Lines("Keywords.txt")) {
        EXPECT_FALSE(seen.contains(keyword.toUpper())) << keyword.constData();
        seen.insert(keyword.toUpper());
    }
}

TEST(WordFiles, HoldKeywordsThatReadBackAsOneItemEach) {
    for (const QByteArray &keyword : Lines("Keywords.txt")) {
        EXPECT_FALSE(keyword.isEmpty());
        for (const char mark : {',', '"', ' ', '\t', '\r'})
            EXPECT_FALSE(keyword.contains(mark)) << keyword.constData();
    }
}

TEST(WordFiles, AreWindows1252) {
    for (const char *name : {"Keywords.txt", "QuickHelp.txt"}) {
        EXPECT_TRUE(IsWindows1252(ReadDataFile(name))) << name;
        EXPECT_FALSE(LooksLikeUtf8(ReadDataFile(name))) << name;
    }
}

TEST(WordFiles, EndEveryLineWithCarriageReturnAndLineFeed) {
    for (const char *name : {"Keywords.txt", "QuickHelp.txt"}) {
        const QByteArray bytes = ReadDataFile(name);
        EXPECT_TRUE(bytes.endsWith("\r\n")) << name;
        EXPECT_EQ(bytes.count("\r\n"), bytes.count('\n')) << name;
        EXPECT_EQ(bytes.count("\r\n"), bytes.count('\r')) << name;
    }
}

} // namespace
} // namespace Quillbox
