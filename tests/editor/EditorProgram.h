// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorView.h"
#include "editor/TextFollower.h"
#include "fakes/FakeProgram.h"
#include "language/QuickHelp.h"
#include "language/SymbolLists.h"
#include "language/SymbolScanner.h"
#include "state/WordFiles.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Quillbox {

/// The editor's rules over one open document, "/j/juego.prg", which is the current one. All three
/// navigation lists and the quick help are switched on.
class EditorProgram : public FakeProgram {
  protected:
    EditorProgram() {
        Options.ShowFunctions = true;
        Options.ShowLabels = true;
        Options.ShowTypes = true;
        Options.ShowQuickHelp = true;
        Open({"/j/juego.prg"});
        Editor().Content = QString();
    }

    EditorView ViewOf(int position) { return {WindowOf(position), Options, Main, Events}; }
    TextFollower FollowerOf(int position) {
        return {WindowOf(position), Registry, Scanner, HelpLine};
    }
    FakeEditor &Editor() { return EditorOf(1); }
    Document &Game() { return Registry.Documents[1]; }

    std::vector<std::string> Items(NavigationList list) {
        std::vector<std::string> texts;
        for (const QString &text : Lists.Items[list])
            texts.push_back(text.toStdString());
        return texts;
    }
    std::vector<std::string> Functions() { return Items(NavigationList::Functions); }
    std::vector<std::string> Types() { return Items(NavigationList::Types); }

    /// Every completed scan registers the language exactly once.
    int CompletedScans() const {
        return static_cast<int>(
            std::ranges::count(Log.Calls(), "languages.RegisterLanguage Blitz3D"));
    }

    LanguageWords Words;
    SymbolScanner Scanner{Registry, Options, Lists, {Words.LanguageDefinition, Languages}, Events};
    SymbolLists Jumps{Registry, Lists};
    QuickHelp HelpLine{Options, Words, Registry};
};

} // namespace Quillbox
