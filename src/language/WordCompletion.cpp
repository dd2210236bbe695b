// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/WordCompletion.h"

#include "base/Numbers.h"
#include "base/TextPosition.h"
#include "state/DocumentRegistry.h"
#include "state/WordFiles.h"

#include <algorithm>

namespace Quillbox {
namespace {

bool IsWordCharacter(QChar character) { return character.isLetterOrNumber() || character == u'_'; }

/// A declaration's name may be followed by anything: fields, a comment, blanks.
QString LeadingWord(const QString &text) {
    const auto start = std::find_if_not(text.begin(), text.end(),
                                        [](QChar character) { return character.isSpace(); });
    const auto end = std::find_if_not(start, text.end(), IsWordCharacter);
    return text.mid(start - text.begin(), end - start);
}

void AddKeywords(Completions &completions, const LanguageWords &words) {
    for (int index = WordTable::FirstIndex; index <= WordTable::LastIndex; ++index)
        if (!words.KeywordTable[index].isEmpty())
            completions.push_back({words.KeywordTable[index], words.QuickHelpTable[index]});
}

void AddSymbols(Completions &completions, const SymbolTexts &names, const SymbolTexts &lines,
                int count, const QString &help) {
    const int end = std::min(count, SymbolTexts::LastIndex + 1);
    for (int entry = SymbolTexts::FirstIndex; entry < end; ++entry) {
        const QString name = LeadingWord(names[entry]);
        const LineIndex line{ToLong(LeadingNumber(lines[entry]))};
        if (!name.isEmpty())
            completions.push_back({name, help.arg(NumberOf(line).Value)});
    }
}

void SortAndKeepEachOnce(Completions &completions) {
    const auto compare = [](const Completion &one, const Completion &other) {
        return one.Word.compare(other.Word, Qt::CaseInsensitive);
    };
    std::ranges::stable_sort(completions, [&](const Completion &one, const Completion &other) {
        return compare(one, other) < 0;
    });
    const auto repeated = std::unique(
        completions.begin(), completions.end(),
        [&](const Completion &one, const Completion &other) { return compare(one, other) == 0; });
    completions.erase(repeated, completions.end());
}

} // namespace

Completions CollectCompletions(const LanguageWords &words, const Document &document,
                               SymbolCounts counts) {
    Completions completions;
    AddKeywords(completions, words);
    AddSymbols(completions, document.FunctionNames, document.FunctionLines, counts.Functions,
               QStringLiteral("Función del documento, línea %1"));
    AddSymbols(completions, document.TypeNames, document.TypeLines, counts.Types,
               QStringLiteral("Type del documento, línea %1"));
    SortAndKeepEachOnce(completions);
    return completions;
}

Completions CompletionsOf(const Completions &candidates, QStringView prefix) {
    Completions found;
    std::ranges::copy_if(candidates, std::back_inserter(found), [&](const Completion &candidate) {
        return candidate.Word.startsWith(prefix, Qt::CaseInsensitive);
    });
    return found;
}

qsizetype ReplacedBehindCaret(QStringView word, QStringView prefix, QStringView rest) {
    return word.sliced(prefix.size()).startsWith(rest, Qt::CaseInsensitive) ? rest.size() : 0;
}

} // namespace Quillbox
