// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace Quillbox {

class EditorControl;
class EventLoop;
class LanguageRegistration;
class NavigationLists;
struct Document;
struct DocumentRegistry;
struct LanguageDefinition;
struct Settings;

/// The colouring rules and the place where they are registered.
struct RegisteredLanguage {
    LanguageDefinition &Definition;
    LanguageRegistration &Registration;
};

/// Fills the navigation lists and the language's user words from the current document. A
/// declaration is a line that begins, in its first column and in any letter case, with the prefix
/// of functions or of types, whatever follows it. Labels are never recognised.
class SymbolScanner {
  public:
    SymbolScanner(DocumentRegistry &registry, const Settings &settings, NavigationLists &lists,
                  RegisteredLanguage language, EventLoop &events);

    /// Rescans the current document. Entries of a longer earlier scan stay in the tables behind the
    /// new ones. With no document or with all three lists switched off nothing happens, and the
    /// document's Scanning flag stays as it is.
    void ScanSymbols();
    /// After a change of the settings: rescans, or empties the lists and the user words when the
    /// functions are no longer collected.
    void RefreshSymbols();
    /// Sets the current document's Scanning flag and scans, unless a scan is pending already.
    void ScanUnlessPending();
    /// Scans when the selection starts on a line that the tables hold as a declaration.
    void ScanAfterChange();

  private:
    bool ScanLines();
    bool ScanLine(int line, std::string_view utf8, int &functions, int &types);
    bool RecordFunction(const QString &text, int line, int &count);
    void RecordType(const QString &text, int line, int &count);
    bool YieldedWithDocument();

    DocumentRegistry &Registry_;
    const Settings &Settings_;
    NavigationLists &Lists_;
    RegisteredLanguage Language_;
    EventLoop &Events_;
};

} // namespace Quillbox
