// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class Compiler;
class CompilerLog;
class Dialogs;
class DocumentCommands;
class MainWindow;
class Programs;
struct Document;
struct DocumentRegistry;
struct Settings;

/// What the build commands work with.
struct BuildParts {
    DocumentRegistry &Registry;
    DocumentCommands &Documents;
    const Settings &Options;
    Quillbox::Compiler &Compiler;
    CompilerLog &Log;
    Programs &Launcher;
    Dialogs &Questions;
};

/// The Program menu. All commands work on the active document; with none run-time error 9 ends
/// them.
class BuildCommands {
  public:
    explicit BuildCommands(const BuildParts &parts);

    /// Saves the active document, not the others, and compiles it.
    void mnuPrograma_ComprobarErrores_Click();
    /// Saves everything, compiles and, without an error, starts what was compiled.
    void mnuPrograma_Ejecutar_Click();
    /// Asks for the executable's name, saves everything and builds it. Cancelling does nothing.
    void mnuPrograma_CrearEXE_Click();

  private:
    void SetCompilerPath();
    void SaveActiveDocument();
    QString CompileLine();

    BuildParts Parts_;
};

/// Debug mode is carried as a check mark; no command line depends on it.
void mnuPrograma_ModoDebug_Click(bool &debugMode, MainWindow &mainWindow);

} // namespace Quillbox
