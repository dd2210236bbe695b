// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/SymbolScanner.h"

#include <QString>

namespace Quillbox {

class CommandState;
class HelpViewer;
class MainWindow;
class SettingsStore;
class WordFiles;

/// What happens before the first document can be opened, in its fixed order. The language that is
/// prepared is the one that WordFiles fills.
struct StartUp {
    QString AppDir;
    MainWindow &Main;
    CommandState &Commands;
    RegisteredLanguage Language;
    WordFiles &Words;
    SettingsStore &Store;
    HelpViewer &Help;

    /// A run-time error ends the program: more than 600 words, or a number in the settings file
    /// that its field cannot hold.
    void Run();
};

} // namespace Quillbox
