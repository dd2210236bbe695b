// SPDX-License-Identifier: GPL-3.0-or-later
#include "data_files/DataFile.h"
#include "data_files/HelpFolder.h"

#include <QDir>
#include <QHash>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

QStringList Keywords() {
    QStringList words;
    for (const QByteArray &line : ReadDataFile("Keywords.txt").split('\n'))
        if (const QString word = QString::fromLatin1(line).trimmed(); !word.isEmpty())
            words += word;
    return words;
}

/// On which pages of the reference each word has its row.
QHash<QString, QStringList> PagesByWord() {
    QHash<QString, QStringList> pages;
    for (const QString &page : HelpPageNames())
        if (page.startsWith("Referencia/"))
            for (const QString &word :
                 AllMatches(HelpPage(page), R"re(<td class="clave"><a name="([^"]*)")re"))
                pages[word] += page;
    return pages;
}

TEST(HelpReference, ExplainsEveryKeywordOnce) {
    const auto pages = PagesByWord();
    const QStringList words = Keywords();
    ASSERT_EQ(words.size(), 595);
    for (const QString &word : words)
        EXPECT_EQ(pages.value(word).size(), 1) << word.toStdString();
    EXPECT_EQ(pages.size(), words.size());
}

TEST(HelpReference, ListsEveryKeywordInTheAlphabet) {
    const QStringList listed = AllMatches(HelpPage("Referencia/alfabetico.htm"),
                                          R"re(<a href="[a-z0-9_]+\.htm#([^"]+)")re");
    const QStringList words = Keywords();
    EXPECT_EQ(listed.size(), words.size());
    for (const QString &word : words)
        EXPECT_TRUE(listed.contains(word)) << word.toStdString();
}

TEST(HelpReference, LinksEveryExampleProgram) {
    const QString page = HelpPage("Referencia/ejemplos.htm");
    for (const QString &file : QDir(DataPath("Ayuda/Ejemplos")).entryList({"*.bb"}, QDir::Files))
        EXPECT_TRUE(page.contains("href=\"../Ejemplos/" + file + "\"")) << file.toStdString();
}

} // namespace
} // namespace Quillbox
