// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorView.h"

#include "editor/ApplyEditorSettings.h"
#include "language/QuickHelp.h"
#include "language/SymbolScanner.h"
#include "state/DocumentRegistry.h"
#include "state/Language.h"
#include "state/LanguageDefinition.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/EventLoop.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {
namespace {

constexpr int BackspaceKey = 8;
constexpr int EnterKey = 13;
constexpr int DeleteKey = 46;
constexpr int ControlE = 5;

constexpr Color MarginDividerColor = RgbColor(150, 150, 150);
constexpr Color MarginColor = RgbColor(200, 200, 200);

bool RemovesOrAddsLines(int keyCode) {
    return keyCode == EnterKey || keyCode == BackspaceKey || keyCode == DeleteKey;
}

} // namespace

EditorView::EditorView(DocumentWindow &window, const EditorViewParts &parts)
    : Window_(window)
    , Parts_(parts) {}

void EditorView::Form_Load() {
    EditorControl &editor = Window_.Editor();
    editor.SetLanguage(SourceLanguage.Name);
    editor.SetColor(ColorSlot::MarginDivider, MarginDividerColor);
    editor.SetColor(ColorSlot::Margin, MarginColor);
    ApplyEditorSettings(Window_, Parts_.Options);
}

void EditorView::Form_Paint() { Parts_.Scanner.ScanUnlessPending(); }

void EditorView::txtCode_ModifiedChanged() {
    Window_.EnablePanel(StatusPanel::Modified, Window_.Editor().IsModified());
}

void EditorView::txtCode_Change() {
    txtCode_ModifiedChanged();
    Parts_.Scanner.ScanAfterChange();
}

void EditorView::txtCode_KeyDown() {
    if (Parts_.Registry.CurrentIndex > 0)
        LineCountAtKeyDown_ = Window_.Editor().LineCount();
}

void EditorView::txtCode_KeyUp(int keyCode) {
    ShowCaretPosition();
    if (Window_.Editor().LineCount() != LineCountAtKeyDown_ && RemovesOrAddsLines(keyCode))
        Parts_.Scanner.ScanUnlessPending();
    Parts_.Help.UpdateQuickHelp(Window_);
}

void EditorView::txtCode_MouseUp() {
    ShowCaretPosition();
    Parts_.Help.UpdateQuickHelp(Window_);
}

void EditorView::txtCode_RClick() { Parts_.Main.PopUpEditMenu(); }

bool EditorView::txtCode_KeyPress(int characterCode) {
    if (characterCode != ControlE || !Parts_.Events.IsCtrlDown())
        return false;
    Window_.Editor().ExecuteCommand(EditorCommand::SelectAll);
    return true;
}

void EditorView::txtCode_GotFocus() { ApplyEditorSettings(Window_, Parts_.Options); }

void EditorView::ShowCaretPosition() {
    const TextPosition caret = Window_.Editor().GetSel().End;
    Window_.SetPanelText(
        StatusPanel::CaretPosition,
        QStringLiteral("%1 :%2").arg(NumberOf(caret.Line).Value).arg(NumberOf(caret.Column).Value));
}

} // namespace Quillbox
