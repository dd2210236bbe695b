// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/TextFollower.h"

#include "language/QuickHelp.h"
#include "language/SymbolScanner.h"
#include "state/DocumentRegistry.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

constexpr int BackspaceKey = 8;
constexpr int EnterKey = 13;
constexpr int DeleteKey = 46;

bool RemovesOrAddsLines(int keyCode) {
    return keyCode == EnterKey || keyCode == BackspaceKey || keyCode == DeleteKey;
}

} // namespace

TextFollower::TextFollower(DocumentWindow &window, DocumentRegistry &registry,
                           SymbolScanner &scanner, QuickHelp &quickHelp)
    : Window_(window)
    , Registry_(registry)
    , Scanner_(scanner)
    , QuickHelp_(quickHelp) {}

void TextFollower::Form_Paint() { Scanner_.ScanUnlessPending(); }

void TextFollower::txtCode_ModifiedChanged() {
    Window_.EnablePanel(StatusPanel::Modified, Window_.Editor().IsModified());
}

void TextFollower::txtCode_Change() {
    txtCode_ModifiedChanged();
    Scanner_.ScanAfterChange();
}

void TextFollower::txtCode_KeyDown() {
    if (Registry_.CurrentIndex > 0)
        LineCountAtKeyDown_ = Window_.Editor().LineCount();
}

void TextFollower::txtCode_KeyUp(int keyCode) {
    ShowCaretPosition();
    if (Window_.Editor().LineCount() != LineCountAtKeyDown_ && RemovesOrAddsLines(keyCode))
        Scanner_.ScanUnlessPending();
    QuickHelp_.UpdateQuickHelp(Window_);
}

void TextFollower::txtCode_MouseUp() {
    ShowCaretPosition();
    QuickHelp_.UpdateQuickHelp(Window_);
}

void TextFollower::txtCode_CaretMoved() { ShowCaretPosition(); }

void TextFollower::ShowCaretPosition() {
    const TextPosition caret = Window_.Editor().GetSel().End;
    Window_.SetPanelText(
        StatusPanel::CaretPosition,
        QStringLiteral("%1 :%2").arg(NumberOf(caret.Line).Value).arg(NumberOf(caret.Column).Value));
}

} // namespace Quillbox
