// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/DocumentCommands.h"

#include "documents/ActivateDocument.h"
#include "documents/CommandState.h"
#include "documents/SyncTabs.h"
#include "state/DocumentRegistry.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindow.h"

#include <algorithm>

namespace Quillbox {

void DocumentCommands::mnuArchivo_Cerrar_Click() {
    if (NewDocumentGuard_ || Registry_.CurrentIndex == 0)
        return;
    if (!Registry_.Current().Window->Editor().IsModified())
        return CloseDocument();
    const MessageAnswer answer = Dialogs_.ShowMessage(
        {QStringLiteral("El archivo ha sido modificado. ¿Quieres guardar los cambios?"),
         QStringLiteral("Atención"), MessageIcon::Question, MessageButtons::YesNoCancel});
    if (answer == MessageAnswer::Cancel)
        return;
    if (answer == MessageAnswer::Yes)
        SaveDocument();
    // Also after a cancelled file chooser: who answers Yes and then cancels closes without saving.
    CloseDocument();
}

void DocumentCommands::mnuArchivo_CerrarTodo_Click() {
    for (int position = Registry_.DocumentCount; position >= 1; --position) {
        Registry_.CurrentIndex = position;
        SyncTabs(Registry_, Tabs_);
        mnuArchivo_Cerrar_Click();
        if (Registry_.DocumentCount == position)
            return;
    }
}

/// The table stays dense because contents move, not windows: the window that goes is the last one.
void DocumentCommands::CloseDocument() {
    const int last = Registry_.DocumentCount;
    DocumentWindow *lastWindow = Registry_.Documents[last].Window;
    Registry_.DocumentCount = last - 1;
    Tabs_.RemoveTab(last + 1);
    for (int position = Registry_.CurrentIndex; position < last; ++position)
        MoveContents(position + 1, position);
    lastWindow->Close();
    Registry_.Documents[last].Window = nullptr;
    ActivateAfterClosing();
}

void DocumentCommands::MoveContents(int from, int to) {
    Document &source = Registry_.Documents[from];
    Document &target = Registry_.Documents[to];
    target.FileName = source.FileName;
    target.Directory = source.Directory;
    target.Window->Editor().TakeContentsFrom(source.Window->Editor());
    ShowModified(target);
    target.Window->SetCaption(source.Window->Caption());
    Tabs_.SetTabCaption(to + 1, target.FileName);
}

void DocumentCommands::ActivateAfterClosing() {
    Registry_.CurrentIndex = std::min(Registry_.CurrentIndex, Registry_.DocumentCount);
    if (Registry_.DocumentCount == 0)
        CommandState_.UpdateCommandState(false);
    else
        ActivateDocument(Registry_.Current());
    SyncTabs(Registry_, Tabs_);
}

} // namespace Quillbox
