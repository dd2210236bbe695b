// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/DataFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

class HelpPages : public testing::TestWithParam<const char *> {
  protected:
    static QByteArray Bytes() { return ReadDataFile(QString("Ayuda/") + GetParam()); }
};

/// A page as the help viewer decodes it: by the character set that the page names.
QString Decode(const QByteArray &page) { return QStringDecoder::decoderForHtml(page)(page); }

/// What the first group of pattern matches, once per match.
QStringList AllMatches(const QString &text, const char *pattern) {
    QStringList found;
    auto matches =
        QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QStringList Anchors(const QString &page) {
    return AllMatches(page, R"re(<a\s[^>]*name="([^"]*)")re");
}

QStringList Links(const QString &page) {
    return AllMatches(page, R"re(<a\s[^>]*href="([^"]*)")re");
}

/// Empty when a link on the page fromPage leads somewhere, otherwise what is missing.
QString MissingTarget(const QString &fromPage, const QString &link) {
    const QString name = link.section('#', 0, 0).isEmpty() ? fromPage : link.section('#', 0, 0);
    const QString anchor = link.section('#', 1);
    if (!QFileInfo(DataPath("Ayuda/" + name)).isFile())
        return "file " + name;
    if (!anchor.isEmpty() && !Anchors(Decode(ReadDataFile("Ayuda/" + name))).contains(anchor))
        return "anchor " + anchor + " in " + name;
    return {};
}

TEST_P(HelpPages, AreWindows1252AndSaySo) {
    EXPECT_TRUE(Bytes().contains("charset=windows-1252"));
    EXPECT_TRUE(IsWindows1252(Bytes()));
    EXPECT_FALSE(LooksLikeUtf8(Bytes()));
}

TEST_P(HelpPages, ShowSpanishLettersWhenDecodedByTheirOwnDeclaration) {
    EXPECT_TRUE(Decode(Bytes()).contains(QStringLiteral("está junto al programa")));
}

TEST_P(HelpPages, LinkOnlyToWhatExists) {
    const QStringList links = Links(Decode(Bytes()));
    EXPECT_FALSE(links.isEmpty());
    for (const QString &link : links)
        EXPECT_EQ(MissingTarget(GetParam(), link).toStdString(), "") << link.toStdString();
}

TEST_P(HelpPages, FetchNothingAndRunNoScript) {
    const QString page = Decode(Bytes());
    for (const char *forbidden :
         {"<script", "<img", "<iframe", "http://", "https://", "javascript:"})
        EXPECT_FALSE(page.contains(QLatin1String(forbidden), Qt::CaseInsensitive)) << forbidden;
}

TEST_P(HelpPages, LeadToEachOther) {
    const QString other = QString(GetParam()) == "index.htm" ? "HowTo.htm" : "index.htm";
    EXPECT_TRUE(Links(Decode(Bytes())).contains(other));
}

INSTANTIATE_TEST_SUITE_P(All, HelpPages, testing::Values("index.htm", "HowTo.htm"),
                         [](const auto &test) {
                             return QString(test.param).section('.', 0, 0).toStdString();
                         });

TEST(HelpPage, OfTheSettingsExplainsEverySettingWithItsDefault) {
    struct Setting {
        const char *Key;
        const char *Default;
    };
    const Setting settings[] = {
        {"FenixCPath", R"(C:\Fenix\FXC.exe)"},
        {"HelpPath", R"(C:\Fenix\docs\index.xml)"},
        {"MainPath", R"(C:\Fenix\)"},
        {"ShowQuickHelp", "1"},
        {"ColorSyntax", "1"},
        {"StringColor", "8388736"},
        {"OperatorsColor", "0"},
        {"TextColor", "0"},
        {"BackgroundColor", "16777215"},
        {"KeywordsColor", "128"},
        {"CommentsColor", "32768"},
        {"NumbersColor", "16711680"},
        {"StringsStyle", "0"},
        {"CommentsStyle", "0"},
        {"OperatorsStyle", "1"},
        {"TextStyle", "0"},
        {"KeywordsStyle", "1"},
        {"NumbersStyle", "1"},
        {"Font", "Courier"},
        {"FontSize", "10"},
        {"TabSize", "3"},
        {"LineNumbers", "1"},
        {"ShowFunctions", "1"},
        {"ShowLabels", "1"},
        {"ShowTypes", "1"},
    };
    const QString page = Decode(ReadDataFile("Ayuda/HowTo.htm"));
    for (const auto &[key, value] : settings) {
        const QString row =
            QString("<a name=\"%1\"></a>%1</td><td><code>%2</code></td>").arg(key, value);
        EXPECT_TRUE(page.contains(row)) << key;
    }
}

} // namespace
} // namespace Quillbox
