// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/FixedTable.h"
#include "state/LanguageDefinition.h"

#include <QString>

namespace Quillbox {

class Dialogs;
class Files;

using WordTable = FixedTable<QString, 1, 600>;

/// The words of the language and how they are coloured. Slot i of QuickHelpTable is the one-line
/// help of the keyword in slot i of KeywordTable.
struct LanguageWords {
    WordTable KeywordTable;
    WordTable QuickHelpTable;
    QString KeywordListText; ///< every keyword in upper case, each preceded by a line feed
    Quillbox::LanguageDefinition LanguageDefinition;
};

/// Sets the fixed colouring rules.
void SetLanguageRules(LanguageDefinition &language);

/// Reads "Keywords.txt" and "QuickHelp.txt" of the program folder. A missing file is warned about
/// and skipped; a 601st entry is run-time error 9.
class WordFiles {
  public:
    WordFiles(const QString &appDir, LanguageWords &words, Files &files, Dialogs &dialogs);

    void LoadKeywords();
    void LoadQuickHelp();

  private:
    QString ReadText(const QString &path);

    QString AppDir_;
    LanguageWords &Words_;
    Files &Files_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
