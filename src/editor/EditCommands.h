// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace Quillbox {

class EditorControl;

/// What an item of the Edit menu does to the current document's editor.
struct EditCommand {
    const char *Name; ///< the menu item, UTF-8
    void (*Run)(EditorControl &editor);
};

std::span<const EditCommand> EditCommands();

} // namespace Quillbox
