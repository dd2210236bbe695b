// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

struct DocumentRegistry;
class TabStrip;

/// Selects the tab of the current index, unless it is selected already, and refreshes the caption
/// of a document's tab.
void SyncTabs(DocumentRegistry &registry, TabStrip &tabs);

} // namespace Quillbox
