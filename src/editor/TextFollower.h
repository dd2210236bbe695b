// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class DocumentWindow;
class QuickHelp;
class SymbolScanner;
struct DocumentRegistry;

/// What follows one document's text and caret: the status panels, the quick help and the scans of
/// the symbols.
class TextFollower {
  public:
    TextFollower(DocumentWindow &window, DocumentRegistry &registry, SymbolScanner &scanner,
                 QuickHelp &quickHelp);

    /// The window came into view or was uncovered.
    void Form_Paint();
    void txtCode_Change();
    /// The text became modified or, by saving or undoing, unmodified.
    void txtCode_ModifiedChanged();
    void txtCode_KeyDown();
    /// `keyCode`: Enter 13, Backspace 8, Delete 46; other keys have other numbers.
    void txtCode_KeyUp(int keyCode);
    void txtCode_MouseUp();
    /// Also by a jump, without a key: an error, the lists, finding, a bookmark, undo.
    void txtCode_CaretMoved();

  private:
    void ShowCaretPosition();

    DocumentWindow &Window_;
    DocumentRegistry &Registry_;
    SymbolScanner &Scanner_;
    QuickHelp &QuickHelp_;
    int LineCountAtKeyDown_ = 0;
};

} // namespace Quillbox
