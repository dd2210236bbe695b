// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Rules.h"

#include "app/CommandsToSwitch.h"
#include "app/Outside.h"
#include "surfaces/DocumentWindow.h"

namespace Quillbox {

Rules::Rules(const Outside &outside, const MainSurfaces &main, LanguageRegistration &languages,
             CommandWindows &windows)
    : Main(main)
    , Windows(windows)
    , Language{Words.LanguageDefinition, languages}
    , Store(outside.AppDir, Settings, outside.Profile)
    , WordFiles(outside.AppDir, Words, outside.Files, outside.Dialogs)
    , MainWindowActivation(main.Window, outside.Events)
    , Companions(outside.AppDir, outside.Files, outside.Programs, outside.Dialogs)
    , CommandState(main.Window, outside.Events, CommandsToSwitch())
    , Navigation(Registry, main.Tabs, main.Lists, main.Help, CommandState)
    , Documents(Registry, main.Window, main.Tabs, outside.Dialogs, CommandState)
    , Scanner(Registry, Settings, main.Lists, Language, outside.Events)
    , SymbolLists(Registry, main.Lists)
    , QuickHelp(Settings, Words, Registry)
    , ColorInsertion(outside.Dialogs)
    , CompilerLog(outside.AppDir, Registry, Documents, outside.Files, outside.Dialogs)
    , Compiler(outside.Console, outside.Events, main.Window, CompilerLog)
    , LanguageTools(Settings, outside.Programs)
    , Build(Registry, Documents, outside.Dialogs, Compiler, LanguageTools)
    , DebugMode(main.Window)
    , HelpLinks(Registry, Documents, Scanner, outside.Programs)
    , Help(Registry, Settings, main.Help, Navigation)
    , Tools(Companions, outside.Programs)
    , Sources(outside.Files, outside.Dialogs, Documents)
    , ProjectDisplay(main.Window, CommandState)
    , Projects(Project, outside.Profile, outside.Dialogs, Sources, ProjectDisplay)
    , NewProject(Project, outside.Profile, outside.Dialogs)
    , ProjectInfo(Project, outside.Dialogs, Sources, MainWindowActivation)
    , ToDoList(Project, outside.Dialogs)
    , SettingsEffect(Registry, Scanner, outside.Events) {}

EditorControl &Rules::CurrentEditor() { return Registry.Current().Window->Editor(); }

} // namespace Quillbox
