// SPDX-License-Identifier: GPL-3.0-or-later
// The items of the Edit menu that change whole lines or insert a colour, from the menu to the text.
#include "fakes/UiProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

class TheEditMenu : public UiProgram {
  protected:
    TheEditMenu() {
        Write(QStringLiteral("Keywords.txt"), "Print\r\n");
        Write(QStringLiteral("QuickHelp.txt"), "Print texto\r\n");
        Write(QStringLiteral("a.prg"), "Print 1\r\nPrint 2\r\n");
        Start();
        Open(QStringLiteral("a.prg"));
        Text().SetCaretPos({{0}, {3}});
    }

    EditorControl &Text() { return WindowOf(1)->Editor(); }
};

TEST_F(TheEditMenu, TogglesTheCommentOfTheCaretLine) {
    Trigger(QStringLiteral("mnuEdicion_AlternarComentarios"));
    EXPECT_EQ(Text().Text(), QStringLiteral("//Print 1\r\nPrint 2\r\n"));
    Text().SetCaretPos({{0}, {3}});
    Trigger(QStringLiteral("mnuEdicion_AlternarComentarios"));
    EXPECT_EQ(Text().Text(), QStringLiteral("Print 1\r\nPrint 2\r\n"));
}

TEST_F(TheEditMenu, IndentsAndOutdentsTheCaretLine) {
    Trigger(QStringLiteral("mnuEdicion_DesplazarDerecha"));
    EXPECT_EQ(Text().Text(), QStringLiteral("\tPrint 1\r\nPrint 2\r\n"));
    Trigger(QStringLiteral("mnuEdicion_DesplazarIzquierda"));
    EXPECT_EQ(Text().Text(), QStringLiteral("Print 1\r\nPrint 2\r\n"));
}

TEST_F(TheEditMenu, InsertsTheChosenColorAtTheCaret) {
    Questions.Colors.push_back(RgbColor(255, 128, 0));
    Trigger(QStringLiteral("mnuEdicion_InsertarRGB"));
    EXPECT_EQ(Text().Text(), QStringLiteral("Pri255,128,0nt 1\r\nPrint 2\r\n"));
    Trigger(QStringLiteral("mnuEdicion_Deshacer"));
    EXPECT_EQ(Text().Text(), QStringLiteral("Print 1\r\nPrint 2\r\n"));
}

TEST_F(TheEditMenu, AsksForNoColorOnTheHelpPage) {
    Trigger(QStringLiteral("mnuVentana_Ayuda"));
    Log.Clear();
    Find<QAction>(QStringLiteral("mnuEdicion_InsertarRGB"))->trigger();
    EXPECT_THAT(Log.CallsOf({"dialogs."}), testing::IsEmpty());
}

} // namespace
} // namespace Quillbox
