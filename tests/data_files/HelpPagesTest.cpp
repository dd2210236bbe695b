// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/HelpFolder.h"
#include "state/settings.h"

#include <QImage>
#include <QSet>
#include <QStringDecoder>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

const char *const LinkPattern = R"re(<(?:a|link)\s[^>]*href="([^"]*)")re";
const char *const AnchorPattern = R"re(<a\s[^>]*name="([^"]*)")re";

/// Empty when the link leads somewhere, otherwise what is missing.
QString MissingTarget(const QString &page, const QString &address) {
    const QString file = FileOfLink(page, address);
    if (!IsHelpFile(file))
        return "file " + file;
    const QString anchor = address.section(u'#', 1);
    if (!anchor.isEmpty() && !AllMatches(HelpPage(file), AnchorPattern).contains(anchor))
        return "anchor " + anchor + " in " + file;
    return {};
}

/// The pages that can be reached from `page`, itself among them.
void VisitFrom(const QString &page, QSet<QString> &visited) {
    if (visited.contains(page))
        return;
    visited.insert(page);
    for (const QString &address : AllMatches(HelpPage(page), LinkPattern))
        if (const QString file = FileOfLink(page, address);
            file.endsWith(".htm") && IsHelpFile(file))
            VisitFrom(file, visited);
}

TEST(HelpPages, AreWhatTheProgramOpens) {
    EXPECT_TRUE(IsHelpFile("index.htm"));
    EXPECT_TRUE(IsHelpFile("HowTo.htm"));
    EXPECT_TRUE(IsHelpFile("Referencia/index.htm"));
}

TEST(HelpPages, LinkOnlyToWhatExists) {
    for (const QString &page : HelpPageNames()) {
        const QStringList addresses = AllMatches(HelpPage(page), LinkPattern);
        EXPECT_FALSE(addresses.isEmpty()) << page.toStdString();
        for (const QString &address : addresses)
            EXPECT_EQ(MissingTarget(page, address).toStdString(), "")
                << page.toStdString() << ": " << address.toStdString();
    }
}

TEST(HelpPages, ShowOnlyPicturesThatExistAsWideAsTheyAre) {
    for (const QString &page : HelpPageNames())
        for (const QString &picture : AllMatches(HelpPage(page), R"re(<img\s([^>]*)>)re")) {
            const QString file =
                FileOfLink(page, AllMatches(picture, R"re(src="([^"]*)")re").value(0));
            if (!IsHelpFile(file)) {
                ADD_FAILURE() << page.toStdString() << ": no picture " << file.toStdString();
                continue;
            }
            EXPECT_EQ(AllMatches(picture, R"re(width="([^"]*)")re").value(0).toInt(),
                      QImage(HelpPath(file)).width())
                << page.toStdString() << ": " << file.toStdString();
        }
}

TEST(HelpPages, DescribeTheirPictures) {
    for (const QString &page : HelpPageNames())
        for (const QString &picture : AllMatches(HelpPage(page), R"re(<img\s([^>]*)>)re"))
            EXPECT_FALSE(AllMatches(picture, R"re(alt="([^"]+)")re").isEmpty())
                << page.toStdString() << ": " << picture.toStdString();
}

TEST(HelpPages, HaveATitleEach) {
    for (const QString &page : HelpPageNames())
        EXPECT_EQ(AllMatches(HelpPage(page), "<title>([^<]+)</title>").size(), 1)
            << page.toStdString();
}

TEST(HelpPages, AreUtf8AndSaySo) {
    for (const QString &page : HelpPageNames()) {
        const QByteArray bytes = ReadHelpFile(page);
        EXPECT_TRUE(bytes.contains("<meta charset=\"utf-8\">")) << page.toStdString();
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(bytes);
        EXPECT_FALSE(decoder.hasError()) << page.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("Ã"))) << page.toStdString();
    }
}

TEST(HelpPages, FetchNothingAndRunNoScript) {
    for (const QString &page : HelpPageNames())
        for (const char *forbidden : {"<script", "<iframe", "http:", "https:", "javascript:"})
            EXPECT_FALSE(HelpPage(page).contains(QLatin1String(forbidden), Qt::CaseInsensitive))
                << page.toStdString() << ": " << forbidden;
}

TEST(HelpPages, AreAllReachedFromTheFirstOne) {
    QSet<QString> visited;
    VisitFrom("index.htm", visited);
    for (const QString &page : HelpPageNames())
        EXPECT_TRUE(visited.contains(page)) << page.toStdString();
}

TEST(HelpPages, LeadBackToTheFirstOne) {
    for (const QString &page : HelpPageNames()) {
        QStringList files;
        for (const QString &address : AllMatches(HelpPage(page), LinkPattern))
            files += FileOfLink(page, address);
        EXPECT_TRUE(page == "index.htm" || files.contains("index.htm")) << page.toStdString();
    }
}

TEST(HelpPages, ExplainEverySettingWithItsDefault) {
    const QString page = HelpPage("quillbox_ini.htm");
    for (const SettingsEntry &entry : SettingsEntries()) {
        const QString row = QString("<a name=\"%1\"></a>%1</td><td><code>%2</code></td>")
                                .arg(entry.Key, QString(entry.DefaultText).toHtmlEscaped());
        EXPECT_TRUE(page.contains(row)) << entry.Key;
    }
}

} // namespace
} // namespace Quillbox
