// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class DocumentWindow;
class EventLoop;
class MainWindow;
struct Settings;

/// How one document's window shows its editor, and the editor's menu and key of its own.
class EditorView {
  public:
    EditorView(DocumentWindow &window, const Settings &settings, MainWindow &mainWindow,
               EventLoop &events);

    void Form_Load();
    void txtCode_RClick();
    /// A typed control character; true when it was used up here. Ctrl+E (5) selects all.
    bool txtCode_KeyPress(int characterCode);
    void txtCode_GotFocus();

  private:
    DocumentWindow &Window_;
    const Settings &Settings_;
    MainWindow &MainWindow_;
    EventLoop &Events_;
};

} // namespace Quillbox
