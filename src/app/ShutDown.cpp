// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ShutDown.h"

#include "documents/DocumentCommands.h"
#include "state/DocumentRegistry.h"
#include "state/Project.h"
#include "state/settings.h"

namespace Quillbox {

bool ShutDown::Run() {
    if (!OpenProject.File.isEmpty())
        CloseProject();
    if (!OpenProject.File.isEmpty())
        return false;
    Documents.mnuArchivo_CerrarTodo_Click();
    if (Registry.DocumentCount > 0)
        return false;
    Store.SaveSettings();
    return true;
}

} // namespace Quillbox
