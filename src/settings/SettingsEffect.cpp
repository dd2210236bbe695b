// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsEffect.h"

#include "language/SymbolScanner.h"
#include "state/DocumentRegistry.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/EventLoop.h"

namespace Quillbox {

SettingsEffect::SettingsEffect(DocumentRegistry &registry, SymbolScanner &scanner,
                               EventLoop &events)
    : Registry_(registry)
    , Scanner_(scanner)
    , Events_(events) {}

void SettingsEffect::RefreshSymbols() { Scanner_.RefreshSymbols(); }

/// An editor that gets the keyboard applies the settings to itself.
void SettingsEffect::ShowInDocument() {
    if (Registry_.CurrentIndex >= 1)
        Registry_.Current().Window->Editor().SetFocus();
    Events_.ProcessPendingEvents();
}

} // namespace Quillbox
