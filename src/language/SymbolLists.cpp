// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/SymbolLists.h"

#include "base/Numbers.h"
#include "state/DocumentRegistry.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

void GotoEntry(DocumentRegistry &registry, int entry, SymbolTexts Document::*lines) {
    if (entry < 0 || registry.CurrentIndex == 0)
        return;
    const Document &document = registry.Current();
    if (document.Scanning)
        return;
    const int line = ToLong(LeadingNumber((document.*lines)[entry]));
    document.Window->Editor().SetLinePosition({line});
}

} // namespace

SymbolLists::SymbolLists(DocumentRegistry &registry, const NavigationLists &lists)
    : Registry_(registry)
    , Lists_(lists) {}

void SymbolLists::GotoFunction() {
    GotoEntry(Registry_, Lists_.SelectedItem(NavigationList::Functions), &Document::FunctionLines);
}

void SymbolLists::GotoLabel() {}

void SymbolLists::GotoType() {
    GotoEntry(Registry_, Lists_.SelectedItem(NavigationList::Types), &Document::TypeLines);
}

void SymbolLists::GotoSelected(NavigationList list) {
    switch (list) {
    case NavigationList::Functions:
        return GotoFunction();
    case NavigationList::Labels:
        return GotoLabel();
    case NavigationList::Types:
        return GotoType();
    }
}

void ClearNavigationLists(NavigationLists &lists) {
    for (const NavigationList list :
         {NavigationList::Functions, NavigationList::Labels, NavigationList::Types})
        while (lists.ItemCount(list) > 0)
            lists.RemoveItem(list, 0);
}

} // namespace Quillbox
