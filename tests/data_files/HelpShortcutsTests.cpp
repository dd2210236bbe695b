// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Menus.h"
#include "data_files/HelpFolder.h"

#include <QHash>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

/// A portable key sequence as a Spanish keyboard names it.
QString SpanishKeys(const QString &shortcut) {
    return QString(shortcut).replace("Shift", QStringLiteral("Mayús")).replace("Space", "Espacio");
}

/// A caption without its mark for the mnemonic.
QString PlainCaption(const MenuEntry &entry) {
    return QString::fromUtf8(entry.Caption).remove(u'&');
}

/// The rows of the page of keys: what stands behind each key.
QHash<QString, QString> RowsByKey() {
    const QString page = HelpPage("teclas.htm");
    const char *const keyPattern = R"re(<tr><td class="clave">([^<]*)</td><td>[^<]*</td>)re";
    const char *const textPattern = R"re(<tr><td class="clave">[^<]*</td><td>([^<]*)</td>)re";
    const QStringList keys = AllMatches(page, keyPattern);
    const QStringList texts = AllMatches(page, textPattern);
    QHash<QString, QString> rows;
    for (qsizetype i = 0; i < keys.size(); ++i)
        rows.insert(keys[i], texts.value(i));
    EXPECT_EQ(rows.size(), keys.size()) << "a key stands twice";
    return rows;
}

TEST(HelpShortcuts, AreThoseOfTheMenus) {
    const auto rows = RowsByKey();
    ASSERT_FALSE(rows.isEmpty());
    for (const MenuEntry &entry : MenuEntries()) {
        if (*entry.Shortcut == '\0')
            continue;
        EXPECT_EQ(rows.value(SpanishKeys(entry.Shortcut)).toStdString(),
                  PlainCaption(entry).toStdString())
            << entry.Shortcut;
    }
}

TEST(HelpShortcuts, NameNoCommandThatHasAnotherKey) {
    const auto rows = RowsByKey();
    for (const MenuEntry &entry : MenuEntries()) {
        const QString key = rows.key(PlainCaption(entry));
        if (key.isEmpty() || *entry.Menu == '\0')
            continue;
        EXPECT_EQ(key.toStdString(), SpanishKeys(entry.Shortcut).toStdString()) << entry.Name;
    }
}

} // namespace
} // namespace Quillbox
