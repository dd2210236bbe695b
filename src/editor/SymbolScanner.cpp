// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SymbolScanner.h"

#include "app/Navigation.h"
#include "app/Numbers.h"
#include "app/settings.h"
#include "documents/DocumentRegistry.h"
#include "editor/LanguageDefinition.h"
#include "platform/DocumentWindow.h"
#include "platform/EditorControl.h"
#include "platform/EventLoop.h"
#include "platform/LanguageRegistration.h"
#include "platform/MainWindow.h"

#include <algorithm>

namespace Quillbox {
namespace {

constexpr QLatin1String FunctionPrefix("process");
constexpr QLatin1String TypePrefix("type");

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
                             NavigationLists &lists, RegisteredLanguage language,
                             EventLoop &eventLoop)
    : Registry_(registry)
    , Settings_(settings)
    , Lists_(lists)
    , Language_(language)
    , EventLoop_(eventLoop) {}

void SymbolScanner::ScanSymbols() {
    if (Registry_.CurrentIndex == 0)
        return;
    if (!Settings_.ShowFunctions && !Settings_.ShowLabels && !Settings_.ShowTypes)
        return;
    ClearNavigationLists(Lists_);
    Language_.Definition.UserWords.clear();
    if (!ScanLines())
        return;
    Language_.Registration.RegisterLanguage(LanguageName, Language_.Definition);
    if (Registry_.CurrentIndex > 0)
        Registry_.Current().Scanning = false;
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
    const EditorControl &editor = Registry_.Current().Window->Editor();
    int functions = 0;
    int types = 0;
    for (int line = 0; line < editor.LineCount(); ++line) {
        if (Settings_.ShowFunctions && editor.LineBeginsWith({line}, FunctionPrefix)) {
            if (!RecordFunction(editor.LineText({line}), line, functions))
                return false;
            continue;
        }
        if (Settings_.ShowTypes && editor.LineBeginsWith({line}, TypePrefix))
            RecordType(editor.LineText({line}), line, types);
        if (!YieldedWithDocument())
            return false;
    }
    return true;
}

/// The name runs from behind the character after the prefix to "(" or ".", or to the line's end. It
/// grows in the table, so a scan that is abandoned meanwhile leaves what it has read there.
bool SymbolScanner::RecordFunction(const QString &text, int line, int &count) {
    if (count > SymbolTexts::LastIndex)
        return true;
    const auto name = [&]() -> QString & { return Registry_.Current().FunctionNames[count]; };
    name().clear();
    for (qsizetype position = FunctionPrefix.size() + 1; position < text.size(); ++position) {
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
    document.TypeNames[count] = text.mid(TypePrefix.size() + 1);
    Lists_.AddItem(NavigationList::Types, document.TypeNames[count]);
    document.TypeLines[count] = QString::number(line);
    ++count;
}

bool SymbolScanner::YieldedWithDocument() {
    EventLoop_.Yield();
    return Registry_.CurrentIndex != 0;
}

} // namespace Quillbox
