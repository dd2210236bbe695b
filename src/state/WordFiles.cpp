// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/WordFiles.h"

#include "base/AnsiText.h"
#include "base/TextItems.h"
#include "surfaces/FileExists.h"
#include "surfaces/Files.h"

namespace Quillbox {
void SetLanguageRules(LanguageDefinition &language) {
    language.Case = CaseSensitivity::Off;
    language.SingleLineComment = QStringLiteral("//");
    language.MultiLineCommentStart = QStringLiteral("/*");
    language.MultiLineCommentEnd = QStringLiteral("*/");
    language.StringDelimiter = QStringLiteral("\"");
    language.Operators.clear();
    for (const QChar sign : QStringLiteral("+-*/^%&!=<>|.,;:[]()")) {
        language.Operators += sign;
        language.Operators += u'\n';
    }
}

WordFiles::WordFiles(const QString &appDir, LanguageWords &words, Files &files, Dialogs &dialogs)
    : AppDir_(appDir)
    , Words_(words)
    , Files_(files)
    , Dialogs_(dialogs) {}

void WordFiles::LoadKeywords() {
    int slot = 0;
    for (const QString &item :
         FreeFormatItems(ReadText(AppDir_ + QStringLiteral("Keywords.txt")))) {
        Words_.KeywordTable[++slot] = item;
        Words_.LanguageDefinition.Keywords += u'\n' + item.toUpper();
    }
    Words_.KeywordListText = Words_.LanguageDefinition.Keywords;
}

void WordFiles::LoadQuickHelp() {
    int slot = 0;
    for (const QString &line : WholeLines(ReadText(AppDir_ + QStringLiteral("QuickHelp.txt"))))
        Words_.QuickHelpTable[++slot] = line;
}

QString WordFiles::ReadText(const QString &path) {
    if (!FileExists(path, Files_, Dialogs_))
        return {};
    return FromAnsi(Files_.Read(path).value_or(QByteArray()));
}

} // namespace Quillbox
