// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/UiProgram.h"

namespace Quillbox {
namespace {

using CompletingInTheProgram = UiProgram;

TEST_F(CompletingInTheProgram, KnowsKeywordsAndTheDocumentsOwnNames) {
    Write("Keywords.txt", "Print\r\nMovEntity\r\n");
    Write("QuickHelp.txt", "Print texto\r\nMovEntity\r\n");
    Write("juego.bb", "process saltar(a)\r\ntype Bola\r\n");
    Start();
    Open("juego.bb");
    EditorControl &editor = WindowOf(1)->Editor();
    const auto completed = [&](const char *typed) {
        editor.SetCaretPos({{2}, {0}});
        editor.ReplaceSel(QString::fromUtf8(typed));
        Trigger("mnuEdicion_CompletarPalabra");
        const QString text = editor.LineText({2});
        while (editor.CanUndo())
            editor.Undo();
        return text;
    };
    EXPECT_EQ(completed("pri"), "Print");
    EXPECT_EQ(completed("SAL"), "saltar");
    EXPECT_EQ(completed("bo"), "Bola");
    EXPECT_EQ(completed("zz"), "zz");
}

} // namespace
} // namespace Quillbox
