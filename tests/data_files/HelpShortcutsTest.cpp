// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"
#include "data_files/HelpFolder.h"

#include <gmock/gmock.h>

#include <map>

namespace Quillbox {
namespace {

/// A portable key sequence as a Spanish keyboard names it.
QString SpanishKeys(const QString &shortcut) {
    return QString(shortcut).replace("Shift", QStringLiteral("Mayús")).replace("Space", "Espacio");
}

/// A caption without its mark for the mnemonic.
QString PlainCaption(const Command &command) {
    return QString::fromUtf8(command.Caption).remove(u'&');
}

using Rows = std::map<QString, QString>;

/// What stands behind each key in a part of the page of keys.
Rows RowsByKey(const QString &part) {
    const char *const keyPattern = R"re(<tr><td class="clave">([^<]*)</td><td>[^<]*</td>)re";
    const char *const textPattern = R"re(<tr><td class="clave">[^<]*</td><td>([^<]*)</td>)re";
    const QStringList keys = AllMatches(part, keyPattern);
    const QStringList texts = AllMatches(part, textPattern);
    Rows rows;
    for (qsizetype i = 0; i < keys.size(); ++i)
        EXPECT_TRUE(rows.emplace(keys[i], texts.value(i)).second)
            << "a key stands twice: " << qPrintable(keys[i]);
    EXPECT_FALSE(rows.empty());
    return rows;
}

/// The page names the menus' keys first, then those that only the editor knows.
struct PageOfKeys {
    Rows Menus;
    Rows Editor;
};

PageOfKeys ThePage() {
    const QString page = HelpPage("teclas.htm");
    const qsizetype editor = page.indexOf(R"(<a name="editor">)");
    EXPECT_GT(editor, 0);
    return {RowsByKey(page.left(editor)), RowsByKey(page.mid(editor))};
}

Rows KeysOfTheMenus() {
    Rows rows;
    for (const Command &command : Commands())
        if (*command.Key)
            rows.emplace(SpanishKeys(command.Key), PlainCaption(command));
    return rows;
}

std::vector<std::string> Lines(const Rows &rows) {
    std::vector<std::string> lines;
    for (const auto &[key, text] : rows)
        lines.push_back((key + ": " + text).toStdString());
    return lines;
}

/// Neither a key without its line nor a line without its key.
TEST(HelpShortcuts, AreThoseOfTheMenus) {
    EXPECT_THAT(Lines(ThePage().Menus), testing::ElementsAreArray(Lines(KeysOfTheMenus())));
}

TEST(HelpShortcuts, NameNoKeyOfAMenuAmongThoseOfTheEditor) {
    const Rows menus = KeysOfTheMenus();
    for (const auto &[key, text] : ThePage().Editor)
        EXPECT_FALSE(menus.contains(key)) << qPrintable(key);
}

} // namespace
} // namespace Quillbox
