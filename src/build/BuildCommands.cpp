// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/BuildCommands.h"

#include "base/ResumeNext.h"
#include "build/Compiler.h"
#include "build/LanguageTools.h"
#include "documents/DocumentCommands.h"
#include "documents/FileNames.h"
#include "state/DocumentRegistry.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

const QString ExecutableFilter = QStringLiteral("Ejecutables (*.exe)|*.exe");

QString ExecutableNameFor(const Document &document) {
    return WithoutLast(document.FileName, 2) + QStringLiteral("exe");
}

} // namespace

BuildCommands::BuildCommands(DocumentRegistry &registry, DocumentCommands &documents,
                             Dialogs &dialogs, Compiler &compiler, LanguageTools &tools)
    : Registry_(registry)
    , Documents_(documents)
    , Dialogs_(dialogs)
    , Compiler_(compiler)
    , LanguageTools_(tools) {}

void BuildCommands::mnuPrograma_ComprobarErrores_Click() {
    LanguageTools_.SetCompilerPath();
    SaveActiveDocument();
    Compiler_.Compile(LanguageTools_.CompileLine(Registry_.Current()));
}

void BuildCommands::mnuPrograma_Ejecutar_Click() {
    SaveActiveDocument();
    Documents_.SaveNamedDocuments();
    LanguageTools_.SetCompilerPath();
    Compiler_.Compile(LanguageTools_.CompileLine(Registry_.Current()));
    if (!Compiler_.TakeErrorFound())
        LanguageTools_.Run(Registry_.Current());
}

void BuildCommands::mnuPrograma_CrearEXE_Click() {
    ResumeNext guard;
    FileChooser chooser{FileChooserFlags::OverwritePrompt, ExecutableFilter};
    guard.Try([&] { chooser.FileName = ExecutableNameFor(Registry_.Current()); });
    const auto executable = Dialogs_.ShowSave(chooser);
    if (!executable || guard.IsErrorPending())
        return;
    guard.Try([&] { SaveActiveDocument(); });
    guard.Try([&] { Documents_.SaveNamedDocuments(); });
    guard.Try([&] { LanguageTools_.SetCompilerPath(); });
    guard.Try([&] {
        Compiler_.Compile(LanguageTools_.BuildLine(Registry_.Current(), *executable), guard);
    });
}

/// An untitled document is always asked for a name. Who cancels that goes on with the untitled one.
void BuildCommands::SaveActiveDocument() {
    const Document &document = Registry_.Current();
    if (document.Window->Editor().IsModified() || IsUntitled(document))
        Documents_.SaveDocument();
}

} // namespace Quillbox
