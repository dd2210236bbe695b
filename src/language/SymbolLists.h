// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class NavigationLists;
enum class NavigationList;
struct DocumentRegistry;

/// Choosing an entry of a navigation list moves the current document to its declaration. Nothing
/// happens while a scan of the document is pending.
class SymbolLists {
  public:
    SymbolLists(DocumentRegistry &registry, const NavigationLists &lists);

    void GotoFunction();
    /// Labels are never recognised, so there is nowhere to go.
    void GotoLabel();
    void GotoType();
    /// An entry of `list` was clicked, or any key was let go in it.
    void GotoSelected(NavigationList list);

  private:
    DocumentRegistry &Registry_;
    const NavigationLists &Lists_;
};

/// Empties the three lists in their order, item 0 by item 0.
void ClearNavigationLists(NavigationLists &lists);

} // namespace Quillbox
