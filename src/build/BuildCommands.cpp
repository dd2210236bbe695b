// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/BuildCommands.h"

#include "base/ResumeNext.h"
#include "build/Compiler.h"
#include "build/CompilerLog.h"
#include "documents/DocumentCommands.h"
#include "documents/FileNames.h"
#include "state/DocumentRegistry.h"
#include "state/settings.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindow.h"
#include "surfaces/Programs.h"

namespace Quillbox {
namespace {

const QString ExecutableFilter = QStringLiteral("Ejecutables (*.exe)|*.exe");

QString Quoted(const QString &text) { return u'"' + text + u'"'; }

QString PathOf(const Document &document) { return document.Directory + document.FileName; }

QString ExecutableNameFor(const Document &document) {
    return WithoutLast(document.FileName, 2) + QStringLiteral("exe");
}

QString BuildLine(const Settings &settings, const QString &executable, const QString &source) {
    return settings.FenixCPath + QStringLiteral(" -o ") + Quoted(executable) + u' ' +
           Quoted(source);
}

/// Belongs to the Fenix tools: juego.prg is run as juego.dcb, and juego.bb asks for juegodcb.
QString RunLine(const Settings &settings, const Document &document) {
    return settings.MainPath + QStringLiteral("FXI.exe ") +
           Quoted(document.Directory + WithoutLast(document.FileName, 3) + QStringLiteral("dcb"));
}

} // namespace

BuildCommands::BuildCommands(const BuildParts &parts)
    : Parts_(parts) {}

void BuildCommands::mnuPrograma_ComprobarErrores_Click() {
    SetCompilerPath();
    SaveActiveDocument();
    Parts_.Compiler.Compile(CompileLine());
}

void BuildCommands::mnuPrograma_Ejecutar_Click() {
    SaveActiveDocument();
    Parts_.Documents.SaveNamedDocuments();
    SetCompilerPath();
    Parts_.Compiler.Compile(CompileLine());
    if (!Parts_.Log.CompileErrorFound)
        Parts_.Launcher.Start(RunLine(Parts_.Options, Parts_.Registry.Current()),
                              WindowStyle::Minimized);
    Parts_.Log.CompileErrorFound = false;
}

void BuildCommands::mnuPrograma_CrearEXE_Click() {
    ResumeNext guard;
    FileChooser chooser{FileChooserFlags::OverwritePrompt, ExecutableFilter};
    guard.Try([&] { chooser.FileName = ExecutableNameFor(Parts_.Registry.Current()); });
    const auto executable = Parts_.Questions.ShowSave(chooser);
    if (!executable || guard.IsErrorPending())
        return;
    guard.Try([&] { SaveActiveDocument(); });
    guard.Try([&] { Parts_.Documents.SaveNamedDocuments(); });
    guard.Try([&] { SetCompilerPath(); });
    guard.Try([&] {
        Parts_.Compiler.Compile(
            BuildLine(Parts_.Options, *executable, PathOf(Parts_.Registry.Current())), guard);
    });
}

/// A fixed text that the compiler expects, whatever the settings say.
void BuildCommands::SetCompilerPath() {
    Parts_.Launcher.SetVariable(QStringLiteral("blitzpath"),
                                QStringLiteral("C:\\Archivos de programa\\Blitz3D\\"));
}

/// An untitled document is always asked for a name. Who cancels that goes on with the untitled one.
void BuildCommands::SaveActiveDocument() {
    const Document &document = Parts_.Registry.Current();
    if (document.Window->Editor().IsModified() || IsUntitled(document))
        Parts_.Documents.SaveDocument();
}

QString BuildCommands::CompileLine() {
    return Parts_.Options.FenixCPath + u' ' + Quoted(PathOf(Parts_.Registry.Current()));
}

void mnuPrograma_ModoDebug_Click(bool &debugMode, MainWindow &mainWindow) {
    debugMode = !debugMode;
    mainWindow.CheckCommand(QStringLiteral("mnuPrograma_ModoDebug"), debugMode);
}

} // namespace Quillbox
