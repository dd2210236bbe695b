// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/SyncTabs.h"

#include "state/DocumentRegistry.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

void SyncTabs(DocumentRegistry &registry, TabStrip &tabs) {
    const int position = registry.CurrentIndex + 1;
    if (tabs.SelectedTab() != position)
        tabs.SelectTab(position);
    if (registry.CurrentIndex > 0)
        tabs.SetTabCaption(registry.CurrentIndex + 1, registry.Current().FileName);
}

} // namespace Quillbox
