// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class EventLoop;
class SymbolScanner;
struct DocumentRegistry;

/// How changed settings reach what is on the screen.
class SettingsEffect {
  public:
    SettingsEffect(DocumentRegistry &registry, SymbolScanner &scanner, EventLoop &events);

    /// Fills or empties the lists of symbols.
    void RefreshSymbols();
    /// Shows the current document, if there is one, as the settings say.
    void ShowInDocument();

  private:
    DocumentRegistry &Registry_;
    SymbolScanner &Scanner_;
    EventLoop &Events_;
};

} // namespace Quillbox
