// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/QuickHelp.h"

#include "base/Numbers.h"
#include "state/DocumentRegistry.h"
#include "state/WordFiles.h"
#include "state/settings.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

/// Fixed cut that drops a nine-character declaration keyword and its blank, whatever the keyword
/// is. A line that is too short for it shows nothing.
QString WithoutDeclarationKeyword(const QString &line) { return line.mid(9); }

} // namespace

QuickHelp::QuickHelp(const Settings &settings, const LanguageWords &words,
                     DocumentRegistry &registry)
    : Settings_(settings)
    , Words_(words)
    , Registry_(registry) {}

void QuickHelp::UpdateQuickHelp(DocumentWindow &window) {
    if (!Settings_.ShowQuickHelp)
        return;
    const EditorControl &editor = window.Editor();
    const TokenClass tokenClass = editor.CurrentTokenClass();
    if (tokenClass == TokenClass::Keyword)
        ShowKeywordHelp(window, editor.CurrentWord());
    else if (tokenClass == TokenClass::Unclassified)
        ShowDeclaration(window, editor.CurrentWord());
}

void QuickHelp::ShowKeywordHelp(DocumentWindow &window, const QString &word) {
    const QString folded = word.toUpper();
    const WordTable &keywords = Words_.KeywordTable;
    const WordTable &helpLines = Words_.QuickHelpTable;
    if (!word.isEmpty() && folded == LastQuickHelpWord_.toUpper()) {
        window.SetPanelText(StatusPanel::QuickHelp, helpLines[LastQuickHelpIndex_]);
        return;
    }
    for (int index = WordTable::FirstIndex; index <= WordTable::LastIndex; ++index) {
        if (keywords[index].toUpper() != folded)
            continue;
        window.SetPanelText(StatusPanel::QuickHelp, helpLines[index]);
        Remember(word, index);
        return;
    }
}

/// Entry 0 is passed over: the first function of a document never gets quick help.
void QuickHelp::ShowDeclaration(DocumentWindow &window, const QString &word) {
    if (Registry_.CurrentIndex == 0)
        return;
    const Document &document = Registry_.Current();
    const QString folded = word.toUpper();
    for (int index = 1; index <= SymbolTexts::LastIndex; ++index) {
        const QString &name = document.FunctionNames[index];
        if (word.isEmpty() || name.isEmpty())
            return;
        if (name.toUpper() != folded)
            continue;
        const LineIndex line{ToLong(LeadingNumber(document.FunctionLines[index]))};
        window.SetPanelText(StatusPanel::QuickHelp,
                            WithoutDeclarationKeyword(window.Editor().LineText(line)));
        Remember(word, index);
        return;
    }
}

void QuickHelp::Remember(const QString &word, int index) {
    LastQuickHelpWord_ = word;
    LastQuickHelpIndex_ = index;
}

} // namespace Quillbox
