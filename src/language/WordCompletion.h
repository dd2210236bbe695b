// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Completion.h"

#include <QStringView>

namespace Quillbox {

struct Document;
struct LanguageWords;

/// How many entries of a document's symbol tables the last scan has filled; entries behind them are
/// of an earlier text.
struct SymbolCounts {
    int Functions = 0;
    int Types = 0;
};

/// The words that can be completed in `document`: keywords with their quick help, and its functions
/// and types. Sorted regardless of letter case, each word once; a keyword goes before a symbol.
Completions CollectCompletions(const LanguageWords &words, const Document &document,
                               SymbolCounts counts);

/// Those that begin with `prefix` in any letter case, in their order.
Completions CompletionsOf(const Completions &candidates, QStringView prefix);

/// How many characters behind the caret a completion takes over: those of `rest`, the part of the
/// word at the caret that lies behind it, when `word` goes on with them behind `prefix`; else 0.
qsizetype ReplacedBehindCaret(QStringView word, QStringView prefix, QStringView rest);

} // namespace Quillbox
