// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class Compiler;
class Dialogs;
class DocumentCommands;
class LanguageTools;
struct DocumentRegistry;

/// The Program menu. All commands work on the active document; with none run-time error 9 ends
/// them.
class BuildCommands {
  public:
    BuildCommands(DocumentRegistry &registry, DocumentCommands &documents, Dialogs &dialogs,
                  Compiler &compiler, LanguageTools &tools);

    /// Saves the active document, not the others, and compiles it.
    void mnuPrograma_ComprobarErrores_Click();
    /// Saves everything, compiles and, without an error, starts what was compiled.
    void mnuPrograma_Ejecutar_Click();
    /// Asks for the executable's name, saves everything and builds it. Cancelling does nothing.
    void mnuPrograma_CrearEXE_Click();

  private:
    void SaveActiveDocument();

    DocumentRegistry &Registry_;
    DocumentCommands &Documents_;
    Dialogs &Dialogs_;
    Compiler &Compiler_;
    LanguageTools &LanguageTools_;
};

} // namespace Quillbox
