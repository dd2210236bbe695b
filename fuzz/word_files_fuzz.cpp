// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a word file holds, its lines put together again are the file without its line ends. As
// both word files of the program it fills the tables in order or is refused with run-time error 9.
#include "Fuzz.h"

#include "base/AnsiText.h"
#include "base/RuntimeError.h"
#include "base/TextItems.h"
#include "fakes/FakeSystem.h"
#include "state/WordFiles.h"

using namespace Quillbox;

namespace {

void CheckItems(QString text) {
    const QString lines = WholeLines(text).join(QString());
    for (const QString &item : FreeFormatItems(text))
        Require(text.contains(item));
    Require(text.remove(u'\r').remove(u'\n') == lines);
}

void CheckTable(const WordTable &table, const QStringList &items) {
    for (int slot = WordTable::FirstIndex; slot <= WordTable::LastIndex; ++slot)
        Require(table[slot] == items.value(slot - 1));
}

void CheckTables(const QByteArray &content, const QString &text) {
    CallLog log;
    FakeFiles files(log);
    FakeDialogs dialogs(log);
    files.Contents[QStringLiteral("/Keywords.txt")] = content;
    files.Contents[QStringLiteral("/QuickHelp.txt")] = content;
    LanguageWords words;
    WordFiles reader(QStringLiteral("/"), words, files, dialogs);
    try {
        reader.LoadKeywords();
        CheckTable(words.KeywordTable, FreeFormatItems(text));
        reader.LoadQuickHelp();
        CheckTable(words.QuickHelpTable, WholeLines(text));
    } catch (const RuntimeError &error) {
        Require(error.Number == SubscriptOutOfRange().Number);
    }
    Require(dialogs.Messages.empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content = BytesOf(data, size);
    const QString text = FromAnsi(content);
    CheckItems(text);
    CheckTables(content, text);
    return 0;
}
