// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ExternalTools.h"
#include "build/BuildCommands.h"
#include "build/Compiler.h"
#include "build/CompilerLog.h"
#include "build/DebugMode.h"
#include "build/LanguageTools.h"
#include "documents/CommandState.h"
#include "documents/DocumentCommands.h"
#include "documents/Navigation.h"
#include "editor/ColorInsertion.h"
#include "help/HelpCommands.h"
#include "help/HelpLinks.h"
#include "language/QuickHelp.h"
#include "language/SymbolLists.h"
#include "language/SymbolScanner.h"
#include "project/NewProject.h"
#include "project/ProjectCommands.h"
#include "project/ProjectDisplay.h"
#include "project/ProjectInfo.h"
#include "project/ProjectSources.h"
#include "project/ToDoList.h"
#include "settings/SettingsEffect.h"
#include "state/DocumentRegistry.h"
#include "state/Project.h"
#include "state/WordFiles.h"
#include "state/settings.h"
#include "surfaces/CompanionPrograms.h"
#include "surfaces/MainWindowActivation.h"

namespace Quillbox {

class CommandWindows;
class LanguageRegistration;
struct Outside;

/// The main window and what lies in it.
struct MainSurfaces {
    MainWindow &Window;
    TabStrip &Tabs;
    NavigationLists &Lists;
    HelpViewer &Help;
};

/// The records of the process and the rules that share them, in the order in which they need one
/// another. Nothing is decided here.
struct Rules {
    Rules(const Outside &outside, const MainSurfaces &main, LanguageRegistration &languages,
          CommandWindows &windows);
    Rules(const Rules &) = delete;
    Rules &operator=(const Rules &) = delete;

    /// The current document's; with none run-time error 9.
    EditorControl &CurrentEditor();

    MainSurfaces Main;
    CommandWindows &Windows;
    Quillbox::Settings Settings;
    LanguageWords Words;
    DocumentRegistry Registry;
    Quillbox::Project Project;
    RegisteredLanguage Language;
    SettingsStore Store;
    Quillbox::WordFiles WordFiles;
    Quillbox::MainWindowActivation MainWindowActivation;
    CompanionPrograms Companions;
    Quillbox::CommandState CommandState;
    Quillbox::Navigation Navigation;
    DocumentCommands Documents;
    SymbolScanner Scanner;
    Quillbox::SymbolLists SymbolLists;
    Quillbox::QuickHelp QuickHelp;
    Quillbox::ColorInsertion ColorInsertion;
    Quillbox::CompilerLog CompilerLog;
    Quillbox::Compiler Compiler;
    Quillbox::LanguageTools LanguageTools;
    BuildCommands Build;
    Quillbox::DebugMode DebugMode;
    Quillbox::HelpLinks HelpLinks;
    HelpCommands Help;
    ExternalTools Tools;
    ProjectSources Sources;
    Quillbox::ProjectDisplay ProjectDisplay;
    ProjectCommands Projects;
    Quillbox::NewProject NewProject;
    Quillbox::ProjectInfo ProjectInfo;
    Quillbox::ToDoList ToDoList;
    Quillbox::SettingsEffect SettingsEffect;
};

} // namespace Quillbox
