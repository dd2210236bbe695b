// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorView.h"

#include "editor/ApplyEditorSettings.h"
#include "state/Language.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/EventLoop.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

constexpr int ControlE = 5;

constexpr Color MarginDividerColor = RgbColor(150, 150, 150);
constexpr Color MarginColor = RgbColor(200, 200, 200);

} // namespace

EditorView::EditorView(DocumentWindow &window, const Settings &settings, MainWindow &mainWindow,
                       EventLoop &events)
    : Window_(window)
    , Settings_(settings)
    , MainWindow_(mainWindow)
    , Events_(events) {}

void EditorView::Form_Load() {
    EditorControl &editor = Window_.Editor();
    editor.SetLanguage(SourceLanguage.Name);
    editor.SetColor(ColorSlot::MarginDivider, MarginDividerColor);
    editor.SetColor(ColorSlot::Margin, MarginColor);
    ApplyEditorSettings(Window_, Settings_);
}

void EditorView::txtCode_RClick() { MainWindow_.PopUpEditMenu(); }

bool EditorView::txtCode_KeyPress(int characterCode) {
    if (characterCode != ControlE || !Events_.IsCtrlDown())
        return false;
    Window_.Editor().ExecuteCommand(EditorCommand::SelectAll);
    return true;
}

void EditorView::txtCode_GotFocus() { ApplyEditorSettings(Window_, Settings_); }

} // namespace Quillbox
