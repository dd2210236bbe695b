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

TEST(WordFiles, GiveEveryKeywordItsHelpLine) {
    EXPECT_EQ(Lines("Keywords.txt").size(), 595);
    EXPECT_EQ(Lines("QuickHelp.txt").size(), 595);
}

TEST(WordFiles, PairKeywordAndHelpByPosition) {
    const QList<QByteArray> keywords = Lines("Keywords.txt");
    const QList<QByteArray> help = Lines("QuickHelp.txt");
    ASSERT_EQ(keywords.size(), help.size());
    for (qsizetype i = 0; i < keywords.size(); ++i)
        EXPECT_TRUE(help[i].toUpper().contains(keywords[i].toUpper()))
            << "line " << i + 1 << ": " << keywords[i].constData() << " / " << help[i].constData();
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
