// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace Quillbox {

class DocumentCommands;
class SettingsStore;
struct DocumentRegistry;
struct Project;

/// What happens before the main window may close.
struct ShutDown {
    Project &OpenProject;
    std::function<void()> CloseProject; ///< leaves the project open when the person cancels
    DocumentRegistry &Registry;
    DocumentCommands &Documents;
    SettingsStore &Store;

    /// Closes the project and the documents from the last to the first, each with its question, and
    /// writes the settings. False when the person refused at some point: what was closed until then
    /// stays closed and no settings are written.
    bool Run();
};

} // namespace Quillbox
