// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class DocumentWindow;
class EventLoop;
class MainWindow;
class QuickHelp;
class SymbolScanner;
struct DocumentRegistry;
struct Settings;

/// What every document's view shares.
struct EditorViewParts {
    const Settings &Options;
    DocumentRegistry &Registry;
    SymbolScanner &Scanner;
    QuickHelp &Help;
    MainWindow &Main;
    EventLoop &Events;
};

/// The behaviour of one document's window: it configures the editor and follows its events.
class EditorView {
  public:
    EditorView(DocumentWindow &window, const EditorViewParts &parts);

    void Form_Load();
    /// The window came into view or was uncovered.
    void Form_Paint();
    void txtCode_Change();
    /// The text became modified or, by saving or undoing, unmodified.
    void txtCode_ModifiedChanged();
    void txtCode_KeyDown();
    /// `keyCode`: Enter 13, Backspace 8, Delete 46; other keys have other numbers.
    void txtCode_KeyUp(int keyCode);
    void txtCode_MouseUp();
    void txtCode_RClick();
    /// A typed control character; true when it was used up here. Ctrl+E (5) selects all.
    bool txtCode_KeyPress(int characterCode);
    void txtCode_GotFocus();

  private:
    void ShowCaretPosition();

    DocumentWindow &Window_;
    EditorViewParts Parts_;
    int LineCountAtKeyDown_ = 0;
};

} // namespace Quillbox
