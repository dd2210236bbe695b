// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/DataFile.h"

#include "checker/StructureMistake.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// The themes by which the words of the language are divided; each has at least one example.
const QStringList Themes{
    "animation", "array",      "bank",        "brush",       "bsp",    "camera",    "collision",
    "constant",  "conversion", "data",        "declaration", "entity", "file",      "flow",
    "graphics",  "graphics3d", "image",       "input",       "light",  "math",      "md2",
    "mesh",      "movie",      "multiplayer", "network",     "object", "operator",  "picking",
    "plane",     "sound",      "sound3d",     "sprite",      "stream", "string",    "surface",
    "system",    "terrain",    "text",        "texture",     "timer",  "transform", "world"};

QStringList ExampleNames() {
    return QDir(DataPath("Ayuda/Ejemplos")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray BytesOf(const QString &example) { return ReadDataFile("Ayuda/Ejemplos/" + example); }

QStringList LinesOf(const QString &example) {
    return QString::fromLatin1(BytesOf(example)).split("\r\n");
}

QString ThemeOf(const QString &example) { return LinesOf(example).value(1).section("; Tema: ", 1); }

/// The program without its texts and comments, which may hold anything.
QString CodeOf(const QString &example) {
    static const QRegularExpression texts("\"[^\"\r\n]*\"");
    static const QRegularExpression comments(";[^\r\n]*");
    return QString::fromLatin1(BytesOf(example)).replace(texts, "\"\"").remove(comments);
}

/// What the first group of pattern matches in text, in lower case.
QSet<QString> Found(const QString &text, const char *pattern) {
    QSet<QString> found;
    auto matches = QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::MultilineOption)
                       .globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured(1).toLower());
    return found;
}

QSet<QString> Keywords() { return Found(ReadDataFile("Keywords.txt"), R"(^(\w+))"); }

/// The words that the program calls: a name before a bracket, or one that begins a statement and
/// has a value behind it.
QSet<QString> CalledWords(const QString &code) {
    return Found(code, R"((?<![\\.\w])([a-z_]\w*)[%#$]?\()") +
           Found(code, R"re((?:^|:|\bThen |\bElse )[\t ]*([a-z_]\w*) +["\w.(-])re");
}

TEST(HelpExamples, AreNamedForEveryFileSystem) {
    ASSERT_GE(ExampleNames().size(), 22);
    for (const QString &example : ExampleNames())
        EXPECT_TRUE(QRegularExpression("^[a-z0-9_]+\\.bb$").match(example).hasMatch())
            << example.toStdString();
}

TEST(HelpExamples, BeginWithTitleThemeAndPurpose) {
    QSet<QString> titles;
    for (const QString &example : ExampleNames()) {
        const QStringList lines = LinesOf(example);
        ASSERT_GE(lines.size(), 3) << example.toStdString();
        EXPECT_TRUE(lines[0].startsWith("; ")) << example.toStdString();
        EXPECT_TRUE(Themes.contains(ThemeOf(example))) << example.toStdString();
        EXPECT_TRUE(lines[2].startsWith("; ") && lines[2].endsWith('.')) << example.toStdString();
        EXPECT_FALSE(titles.contains(lines[0])) << example.toStdString();
        titles.insert(lines[0]);
    }
}

TEST(HelpExamples, CoverEveryTheme) {
    QStringList missing = Themes;
    for (const QString &example : ExampleNames())
        missing.removeAll(ThemeOf(example));
    EXPECT_EQ(missing.join(' ').toStdString(), "");
}

TEST(HelpExamples, AreShortEnoughToBeReadAtOnce) {
    for (const QString &example : ExampleNames()) {
        EXPECT_GE(BytesOf(example).count('\n'), 15) << example.toStdString();
        EXPECT_LE(BytesOf(example).count('\n'), 60) << example.toStdString();
    }
}

TEST(HelpExamples, AreWindows1252WithCarriageReturnAndLineFeed) {
    for (const QString &example : ExampleNames()) {
        const QByteArray bytes = BytesOf(example);
        EXPECT_TRUE(IsWindows1252(bytes)) << example.toStdString();
        EXPECT_FALSE(LooksLikeUtf8(bytes)) << example.toStdString();
        EXPECT_TRUE(bytes.endsWith("\r\n")) << example.toStdString();
        EXPECT_EQ(bytes.count("\r\n"), bytes.count('\n')) << example.toStdString();
        EXPECT_EQ(bytes.count("\r\n"), bytes.count('\r')) << example.toStdString();
    }
}

TEST(HelpExamples, PassTheStructureChecker) {
    for (const QString &example : ExampleNames()) {
        const auto mistake = FindStructureMistake(BytesOf(example).toStdString());
        EXPECT_FALSE(mistake) << example.toStdString() << ':'
                              << (mistake ? mistake->LineNumber : 0);
    }
}

TEST(HelpExamples, CallOnlyWordsOfTheLanguageAndOwnNames) {
    const QSet<QString> keywords = Keywords();
    ASSERT_EQ(keywords.size(), 595);
    for (const QString &example : ExampleNames()) {
        const QString code = CodeOf(example);
        const QSet<QString> own = Found(code, R"(\b(?:Function|Dim) (\w+))");
        const QSet<QString> called = CalledWords(code);
        EXPECT_FALSE(called.isEmpty()) << example.toStdString();
        for (const QString &word : called - keywords - own)
            ADD_FAILURE() << example.toStdString() << ": " << word.toStdString();
    }
}

} // namespace
} // namespace Quillbox
