// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/PaintCounter.h"
#include "fakes/UiProgram.h"
#include "fakes/Waiting.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>

namespace Quillbox {
namespace {

class TheDocumentWindow : public UiProgram {
  protected:
    TheDocumentWindow() {
        Write(QStringLiteral("Keywords.txt"), "Print\r\nWend\r\n");
        Write(QStringLiteral("QuickHelp.txt"), "Print texto\r\nWhile expr ... Wend\r\n");
        Start();
        Questions.Messages.clear();
    }

    void OpenText(const QByteArray &text) {
        Write(QStringLiteral("a.prg"), text);
        Open(QStringLiteral("a.prg"));
    }
    QLabel *Panel(int number) {
        return WindowOf(1)->findChild<QLabel *>(
            QStringLiteral("stbBarraEstado_Panel%1").arg(number));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(EditorOf(1), key, modifiers);
        Settle();
    }
};

TEST_F(TheDocumentWindow, HasEightStatusPanelsByName) {
    OpenText("");
    for (int number = 1; number <= 8; ++number)
        EXPECT_NE(Panel(number), nullptr) << number;
    EXPECT_EQ(Panel(9), nullptr);
}

TEST_F(TheDocumentWindow, ShowsTheCaretPositionAfterEveryKey) {
    OpenText("uno\r\ndos\r\n");
    EXPECT_EQ(Panel(3)->text(), QStringLiteral("1 :1"));
    Press(Qt::Key_Down);
    Press(Qt::Key_End);
    EXPECT_EQ(Panel(3)->text(), QStringLiteral("2 :4"));
}

/// A jump to an error, a function or a line: no key of the editor is let go afterwards.
TEST_F(TheDocumentWindow, ShowsTheCaretPositionAfterAJumpWithoutAKey) {
    OpenText("uno\r\ndos\r\n");
    WindowOf(1)->Editor().SetCaretPos({{1}, {2}});
    EXPECT_TRUE(WaitFor([this] { return Panel(3)->text() == QStringLiteral("2 :3"); }));
    Trigger(QStringLiteral("mnuEdicion_SeleccionarTodo"));
    EXPECT_TRUE(WaitFor([this] { return Panel(3)->text() == QStringLiteral("3 :1"); }));
}

TEST_F(TheDocumentWindow, EnablesTheModifiedPanelWithTheFirstEditAndDisablesItWithUndo) {
    OpenText("uno\r\n");
    EXPECT_FALSE(Panel(2)->isEnabled());
    QTest::keyClicks(EditorOf(1), QStringLiteral("x"));
    EXPECT_TRUE(Panel(2)->isEnabled());
    Trigger(QStringLiteral("mnuEdicion_Deshacer"));
    EXPECT_FALSE(Panel(2)->isEnabled());
}

TEST_F(TheDocumentWindow, ShowsTheQuickHelpOfTheKeywordAtTheCaret) {
    OpenText("a\r\nPRINT 1\r\n");
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ(Panel(1)->text(), QStringLiteral("Print texto"));
}

TEST_F(TheDocumentWindow, SelectsAllWithControlA) {
    OpenText("uno\r\ndos");
    Press(Qt::Key_A, Qt::ControlModifier);
    const TextRange all{{{0}, {0}}, {{1}, {3}}};
    EXPECT_EQ(WindowOf(1)->Editor().GetSel(), all);
}

TEST_F(TheDocumentWindow, ShowsTheEditMenuOnARightClick) {
    OpenText("uno\r\n");
    auto *menu = Find<QMenu>(QStringLiteral("mnuEdicion"));
    QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, {10, 10});
    QApplication::sendEvent(
        EditorOf(1)->findChild<QWidget *>(QStringLiteral("qt_scrollarea_viewport")), &event);
    Settle();
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

TEST_F(TheDocumentWindow, ReachesDownToTheStatusBarOverTheWholeWidth) {
    OpenText("uno\r\n");
    const QWidget *editor = EditorOf(1);
    const QWidget *bar = WindowOf(1)->findChild<QWidget *>(QStringLiteral("stbBarraEstado"));
    EXPECT_EQ(editor->geometry().bottom() + 1, bar->geometry().top());
    EXPECT_EQ(editor->width(), WindowOf(1)->widget()->width());
    EXPECT_EQ(bar->geometry().bottom() + 1, WindowOf(1)->widget()->height());
}

// Panels 4 and 5 keep their widths, 6 to 8 are not shown.
TEST_F(TheDocumentWindow, GivesTheFirstPanelWhatTheOthersLeave) {
    OpenText("uno\r\n");
    const int barWidth = Panel(1)->parentWidget()->width();
    const int first = Panel(1)->width();
    int left = Panel(1)->x();
    for (int number = 2; number <= 5; ++number) {
        EXPECT_GT(Panel(number)->x(), left) << number;
        EXPECT_EQ(Panel(number)->width(), Panel(number)->minimumWidth()) << number;
        left = Panel(number)->x();
    }
    EXPECT_LE(barWidth - Panel(5)->geometry().right(), Panel(1)->x() + 3);
    WindowOf(1)->SetPanelText(StatusPanel::QuickHelp, QString(1000, u'x'));
    Settle();
    EXPECT_EQ(Panel(1)->width(), first);
    Main().resize(Main().width() - 100, Main().height());
    Settle();
    EXPECT_EQ(Panel(1)->width(), first - 100);
}

TEST_F(TheDocumentWindow, BecomesNarrowerThanItsPanels) {
    OpenText("uno\r\n");
    auto *window = Find<QMdiSubWindow>("frmDoc");
    window->showNormal();
    window->resize(200, 150);
    Settle();
    EXPECT_EQ(window->width(), 200);
}

TEST_F(TheDocumentWindow, RescansWhenEnterAddsALine) {
    OpenText("process Uno()\r\n");
    ASSERT_EQ(Registry().Documents[1].FunctionLines[0], QStringLiteral("0"));
    Press(Qt::Key_Return);
    EXPECT_EQ(Registry().Documents[1].FunctionLines[0], QStringLiteral("1"));
}

// Each paint of the window scans its text, and a scan that had the window painted again would never
// end.
TEST_F(TheDocumentWindow, ComesToRestAfterAPaintAndItsScan) {
    OpenText("process Uno()\r\ntype Dos\r\n");
    PaintCounter paints(*WindowOf(1)->widget());
    WindowOf(1)->widget()->update();
    for (int round = 0; round < 30; ++round)
        Settle();
    EXPECT_EQ(paints.Count, 1);
    WindowOf(1)->Editor().SetCaretPos({{0}, {8}});
    QTest::keyClicks(EditorOf(1), QStringLiteral("x"));
    for (int round = 0; round < 30; ++round)
        Settle();
    EXPECT_EQ(Registry().Documents[1].FunctionNames[0], QStringLiteral("xUno"));
    EXPECT_LE(paints.Count, 2);
}

TEST_F(TheDocumentWindow, MovesTheTextWithItsUndoHistoryWhenAnEarlierDocumentCloses) {
    OpenText("uno\r\n");
    Write(QStringLiteral("b.prg"), "dos\r\n");
    Open(QStringLiteral("b.prg"));
    QTest::keyClicks(EditorOf(2), QStringLiteral("x"));
    Trigger(QStringLiteral("mnuVentana_Anterior"));
    Trigger(QStringLiteral("mnuArchivo_Cerrar"));
    ASSERT_EQ(Registry().DocumentCount, 1);
    EXPECT_EQ(WindowOf(1)->windowTitle(), PathOf(QStringLiteral("b.prg")));
    EXPECT_EQ(WindowOf(1)->Editor().Text(), QStringLiteral("xdos\r\n"));
    EXPECT_TRUE(Panel(2)->isEnabled());
    Trigger(QStringLiteral("mnuEdicion_Deshacer"));
    EXPECT_EQ(WindowOf(1)->Editor().Text(), QStringLiteral("dos\r\n"));
    EXPECT_FALSE(Panel(2)->isEnabled());
}

TEST_F(TheDocumentWindow, StandsOnTheLineOfTheFirstError) {
    OpenText("uno\r\ndos\r\ntres\r\ncuatro\r\n");
    Console.Output = "Error in file " + PathOf(QStringLiteral("a.prg")).toLatin1() +
                     " at line 3: falta algo\r\n";
    Trigger(QStringLiteral("mnuPrograma_ComprobarErrores"));
    EXPECT_EQ(Registry().DocumentCount, 1);
    const TextRange lineStart{{{2}, {0}}, {{2}, {0}}};
    EXPECT_EQ(WindowOf(1)->Editor().GetSel(), lineStart);
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Questions.Messages[0].Text.endsWith(QStringLiteral("at line 3: falta algo")));
}

TEST_F(TheDocumentWindow, TintsTheErrorLineAtTheTopUntilTheNextEdit) {
    OpenText("uno\r\ndos\r\ntres\r\n");
    const auto firstLineColor = [this] {
        return EditorOf(1)->grab().toImage().pixelColor(EditorOf(1)->width() - 60, 6);
    };
    Console.Output = "Error in file " + PathOf(QStringLiteral("a.prg")).toLatin1() +
                     " at line 2: falta algo\r\n";
    Trigger(QStringLiteral("mnuPrograma_ComprobarErrores"));
    const QColor tint = firstLineColor();
    EXPECT_GT(tint.red(), tint.green() + 20);
    QTest::keyClicks(EditorOf(1), QStringLiteral("x"));
    const QColor plain = firstLineColor();
    EXPECT_LE(plain.red(), plain.green() + 2);
}

} // namespace
} // namespace Quillbox
