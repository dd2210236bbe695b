// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/ActivateDocument.h"

#include "state/DocumentRegistry.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {

void ActivateDocument(const Document &document) {
    document.Window->Activate();
    document.Window->Maximize();
    document.Window->Editor().SetFocus();
}

} // namespace Quillbox
