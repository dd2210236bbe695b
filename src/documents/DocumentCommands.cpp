// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/DocumentCommands.h"

#include "base/Paths.h"
#include "documents/ActivateDocument.h"
#include "documents/CommandState.h"
#include "documents/FileNames.h"
#include "documents/SyncTabs.h"
#include "state/DocumentRegistry.h"
#include "state/Language.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

DocumentCommands::DocumentCommands(DocumentRegistry &registry, MainWindow &mainWindow,
                                   TabStrip &tabs, Dialogs &dialogs, CommandState &commandState)
    : Registry_(registry)
    , MainWindow_(mainWindow)
    , Tabs_(tabs)
    , Dialogs_(dialogs)
    , CommandState_(commandState) {}

void DocumentCommands::NewDocument() {
    if (RefuseWhenFull() || NewDocumentGuard_)
        return;
    NewDocumentGuard_ = true;
    Document &document = AddDocument();
    document.FileName = document.Window->Caption();
    document.Directory.clear(); // an earlier document may have left its folder at this position
    document.Window->Show();
    AddSelectedTab();
    NewDocumentGuard_ = false;
}

void DocumentCommands::OpenDocument(const QString &path) {
    if (RefuseWhenFull())
        return;
    if (!path.isEmpty()) {
        if (!ActivateOpenDocument(path))
            LoadDocument(path);
        return;
    }
    const auto chosen =
        Dialogs_.ShowOpen({FileChooserFlags::FileMustExist, SourceLanguage.SourceFilter});
    if (chosen && !ActivateOpenDocument(*chosen))
        LoadDocument(*chosen);
}

void DocumentCommands::SaveDocument() {
    if (Registry_.CurrentIndex == 0)
        return;
    Document &document = Registry_.Current();
    if (IsUntitled(document))
        return SaveDocumentAs();
    document.Window->Editor().SaveFile(document.Directory + document.FileName);
    ShowModified(document);
}

void DocumentCommands::SaveDocumentAs() {
    const auto chosen =
        Dialogs_.ShowSave({FileChooserFlags::OverwritePrompt, SourceLanguage.SourceFilter});
    if (!chosen)
        return;
    Document &document = Registry_.Current();
    const FileNameParts parts = SplitFileName(*chosen);
    document.FileName = parts.FileName;
    document.Directory = parts.Directory;
    document.Window->Editor().SaveFile(*chosen);
    document.Window->SetCaption(*chosen);
    Tabs_.SetTabCaption(Registry_.CurrentIndex + 1, document.FileName);
    ShowModified(document);
}

void DocumentCommands::SaveNamedDocuments() {
    for (int position = 1; position <= Registry_.DocumentCount; ++position) {
        Document &document = Registry_.Documents[position];
        if (IsUntitled(document))
            continue;
        document.Window->Editor().SaveFile(document.Window->Caption());
        ShowModified(document);
    }
}

void DocumentCommands::mnuArchivo_Imprimir_Click() {
    const Document &document = Registry_.Current();
    document.Window->Editor().Print(document.FileName);
}

bool DocumentCommands::RefuseWhenFull() {
    if (Registry_.DocumentCount < DocumentRegistry::Capacity)
        return false;
    Dialogs_.ShowMessage({QStringLiteral("No se pueden abrir más de 1000 documentos a la vez."),
                          QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
    return true;
}

void DocumentCommands::AddDocumentSlot() {
    ++Registry_.DocumentCount;
    CommandState_.UpdateCommandState(true);
}

Document &DocumentCommands::AddDocument() {
    AddDocumentSlot();
    Registry_.CurrentIndex = Registry_.DocumentCount;
    Document &document = Registry_.Current();
    document.Index = Registry_.CurrentIndex;
    document.Window = &MainWindow_.CreateDocumentWindow();
    return document;
}

void DocumentCommands::AddSelectedTab() {
    const int position = Registry_.CurrentIndex + 1;
    Tabs_.AddTab(position, Registry_.Current().FileName);
    Tabs_.SelectTab(position);
}

/// Compilers that run through Wine name a file in its Windows form, so documents are compared in
/// the form that the system opens, too. 0 when no document shows the file.
int DocumentCommands::FindDocument(const QString &path) const {
    const QString asGiven = path.toUpper();
    const QString asOpened = SystemPath(path).toUpper();
    for (int position = 1; position <= Registry_.DocumentCount; ++position) {
        const QString caption = Registry_.Documents[position].Window->Caption();
        if (caption.toUpper() == asGiven || caption.toUpper() == asOpened)
            return position;
        if (caption.contains(u'\\') && SystemPath(caption).toUpper() == asOpened)
            return position;
    }
    return 0;
}

bool DocumentCommands::ActivateOpenDocument(const QString &path) {
    const int position = FindDocument(path);
    if (position == 0)
        return false;
    Registry_.CurrentIndex = position;
    SyncTabs(Registry_, Tabs_);
    return true;
}

void DocumentCommands::LoadDocument(const QString &path) {
    const int previous = Registry_.CurrentIndex;
    Document &document = AddDocument();
    if (!document.Window->Editor().OpenFile(path))
        return TakeBackDocument(previous);
    const FileNameParts parts = SplitFileName(path);
    document.FileName = parts.FileName;
    document.Directory = parts.Directory;
    document.Window->SetCaption(path);
    document.Window->Show();
    AddSelectedTab();
}

/// A document without its file's text must not stay under the file's name: the next run would save
/// it there.
void DocumentCommands::TakeBackDocument(int previous) {
    Document &document = Registry_.Current();
    document.Window->Close();
    document.Window = nullptr;
    --Registry_.DocumentCount;
    Registry_.CurrentIndex = previous;
    CommandState_.UpdateCommandState(previous > 0);
    if (Registry_.DocumentCount > 0)
        CommandState_.EnableWindowMenu();
}

void DocumentCommands::ShowModified(Document &document) {
    document.Window->EnablePanel(StatusPanel::Modified, document.Window->Editor().IsModified());
}

} // namespace Quillbox
