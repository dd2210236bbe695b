// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/WordFiles.h"

#include "base/AnsiText.h"
#include "base/TextItems.h"
#include "state/Language.h"
#include "surfaces/FileExists.h"
#include "surfaces/Files.h"

namespace Quillbox {

void SetLanguageRules(LanguageDefinition &language) {
    language.Case = CaseSensitivity::Off;
    language.SingleLineComment = SourceLanguage.SingleLineComment;
    language.MultiLineCommentStart = SourceLanguage.MultiLineCommentStart;
    language.MultiLineCommentEnd = SourceLanguage.MultiLineCommentEnd;
    language.StringDelimiter = SourceLanguage.StringDelimiter;
    language.Operators.clear();
    for (const char sign : SourceLanguage.Operators) {
        language.Operators += QLatin1Char(sign);
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
    for (const QString &item : FreeFormatItems(ReadText(AppDir_ + SourceLanguage.KeywordFile))) {
        Words_.KeywordTable[++slot] = item;
        Words_.LanguageDefinition.Keywords += u'\n' + item.toUpper();
    }
    Words_.KeywordListText = Words_.LanguageDefinition.Keywords;
}

void WordFiles::LoadQuickHelp() {
    int slot = 0;
    for (const QString &line : WholeLines(ReadText(AppDir_ + SourceLanguage.QuickHelpFile)))
        Words_.QuickHelpTable[++slot] = line;
}

QString WordFiles::ReadText(const QString &path) {
    if (!FileExists(path, Files_, Dialogs_))
        return {};
    return FromAnsi(Files_.Read(path).value_or(QByteArray()));
}

} // namespace Quillbox
