// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/SymbolScanner.h"

#include "base/Numbers.h"
#include "language/SymbolLists.h"
#include "state/DocumentRegistry.h"
#include "state/Language.h"
#include "state/LanguageDefinition.h"
#include "state/settings.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/EventLoop.h"
#include "surfaces/LanguageRegistration.h"
#include "surfaces/MainWindow.h"

#include <algorithm>

namespace Quillbox {
namespace {

/// Most lines differ at their first letter. `prefix` is in lower case.
bool BeginsWith(std::string_view line, std::string_view prefix) {
    const auto isSame = [](char wanted, char found) {
        return wanted ==
               (found >= 'A' && found <= 'Z' ? static_cast<char>(found + ('a' - 'A')) : found);
    };
    return line.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), line.begin(), isSame);
}

QString TextOf(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// One character behind the prefix, normally a blank, is passed over whatever it is.
qsizetype NameStart(std::string_view prefix) { return static_cast<qsizetype>(prefix.size()) + 1; }

bool HoldsLine(const SymbolTexts &names, const SymbolTexts &lines, int line) {
    for (int entry = SymbolTexts::FirstIndex; entry <= SymbolTexts::LastIndex; ++entry) {
        if (names[entry].isEmpty())
            return false;
        if (LeadingNumber(lines[entry]) == line)
            return true;
    }
    return false;
}

} // namespace

SymbolScanner::SymbolScanner(DocumentRegistry &registry, const Settings &settings,
                             NavigationLists &lists, RegisteredLanguage language, EventLoop &events)
    : Registry_(registry)
    , Settings_(settings)
    , Lists_(lists)
    , Language_(language)
    , Events_(events) {}

void SymbolScanner::ScanSymbols() {
    if (Registry_.CurrentIndex == 0)
        return;
    if (!Settings_.ShowFunctions && !Settings_.ShowLabels && !Settings_.ShowTypes)
        return;
    ClearNavigationLists(Lists_);
    Language_.Definition.UserWords.clear();
    if (!ScanLines())
        return;
    Language_.Registration.RegisterLanguage(SourceLanguage.Name, Language_.Definition);
    if (Registry_.CurrentIndex > 0)
        Registry_.Current().Scanning = false;
}

void SymbolScanner::RefreshSymbols() {
    if (Settings_.ShowFunctions)
        return ScanSymbols();
    Language_.Definition.UserWords.clear();
    Language_.Registration.RegisterLanguage(SourceLanguage.Name, Language_.Definition);
    ClearNavigationLists(Lists_);
}

void SymbolScanner::ScanUnlessPending() {
    if (Registry_.CurrentIndex == 0 || Registry_.Current().Scanning)
        return;
    Registry_.Current().Scanning = true;
    ScanSymbols();
}

void SymbolScanner::ScanAfterChange() {
    if (Registry_.CurrentIndex == 0)
        return;
    const Document &document = Registry_.Current();
    const int line = document.Window->Editor().GetSel().Start.Line.Value;
    if (HoldsLine(document.FunctionNames, document.FunctionLines, line) ||
        HoldsLine(document.TypeNames, document.TypeLines, line))
        ScanSymbols();
}

/// False when the scan was abandoned because the help page became active meanwhile.
bool SymbolScanner::ScanLines() {
    int functions = 0;
    int types = 0;
    bool completed = true;
    Registry_.Current().Window->Editor().VisitLines([&](LineIndex line, std::string_view utf8) {
        completed = ScanLine(line.Value, utf8, functions, types);
        return completed;
    });
    return completed;
}

bool SymbolScanner::ScanLine(int line, std::string_view utf8, int &functions, int &types) {
    if (Settings_.ShowFunctions && BeginsWith(utf8, SourceLanguage.FunctionPrefix))
        return RecordFunction(TextOf(utf8), line, functions);
    if (Settings_.ShowTypes && BeginsWith(utf8, SourceLanguage.TypePrefix))
        RecordType(TextOf(utf8), line, types);
    return YieldedWithDocument();
}

/// The name runs from behind the character after the prefix to "(" or ".", or to the line's end. It
/// grows in the table, so a scan that is abandoned meanwhile leaves what it has read there.
bool SymbolScanner::RecordFunction(const QString &text, int line, int &count) {
    if (count > SymbolTexts::LastIndex)
        return true;
    const auto name = [&]() -> QString & { return Registry_.Current().FunctionNames[count]; };
    name().clear();
    for (qsizetype position = NameStart(SourceLanguage.FunctionPrefix); position < text.size();
         ++position) {
        if (text[position] == u'(' || text[position] == u'.')
            break;
        name() += text[position];
        if (!YieldedWithDocument())
            return false;
    }
    Language_.Definition.UserWords += u'\n' + name();
    Lists_.AddItem(NavigationList::Functions, name());
    Registry_.Current().FunctionLines[count] = QString::number(line);
    ++count;
    return true;
}

/// Everything behind the character after the prefix counts as the name, comments included. A line
/// that is only the prefix has an empty name.
void SymbolScanner::RecordType(const QString &text, int line, int &count) {
    if (count > SymbolTexts::LastIndex)
        return;
    Document &document = Registry_.Current();
    document.TypeNames[count] = text.mid(NameStart(SourceLanguage.TypePrefix));
    Lists_.AddItem(NavigationList::Types, document.TypeNames[count]);
    document.TypeLines[count] = QString::number(line);
    ++count;
}

bool SymbolScanner::YieldedWithDocument() {
    Events_.GiveWay();
    return Registry_.CurrentIndex != 0;
}

} // namespace Quillbox
