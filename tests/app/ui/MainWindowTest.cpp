// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Toolbar.h"
#include "base/Version.h"
#include "fakes/UiProgram.h"

#include <QComboBox>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QToolBar>

namespace Quillbox {
namespace {

class TheMainWindow : public UiProgram {
  protected:
    /// There are no word files, which the start warns about.
    TheMainWindow() {
        Start();
        Questions.Messages.clear();
    }

    QAction *ToolButtonWith(const QString &tooltip) {
        for (QAction *action : Find<QToolBar>(QStringLiteral("tbEstandar"))->actions())
            if (action->toolTip() == tooltip)
                return action;
        return nullptr;
    }
    static QString DescriptionOf(const QString &name, const QString &caption, const QString &keys) {
        return QStringList{name, caption, keys}.join(u'|');
    }
    QStringList MenuTitles() {
        QStringList titles;
        for (const QAction *action : Main().menuBar()->actions())
            titles.append(action->text());
        return titles;
    }
};

TEST_F(TheMainWindow, StartsOnTheHelpPageWithoutDocument) {
    EXPECT_TRUE(Main().windowTitle().startsWith(
        QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>")));
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_EQ(Find<QTabBar>(QStringLiteral("tabDocuments"))->count(), 1);
    EXPECT_TRUE(Find<QWidget>(QStringLiteral("htmlAyuda"))->isVisible());
}

TEST_F(TheMainWindow, ShowsTheSixMenusInTheirOrder) {
    EXPECT_EQ(MenuTitles(), QStringList({"&Archivo", "&Edición", "&Programa", "&Herramientas",
                                         "&Ventana", "A&yuda"}));
}

/// The table, menu by menu, as a person sees it.
TEST_F(TheMainWindow, ShowsEveryMenuWithItsItemsAndKeysInTheOrderOfTheTable) {
    QStringList expected;
    for (const Command &command : Commands()) {
        if (command.IsSeparator())
            expected.append(QStringLiteral("-"));
        else if (command.IsMenu() || command.IsMenuItem())
            expected.append(DescriptionOf(QString::fromUtf8(command.Name),
                                          QString::fromUtf8(command.Caption),
                                          QLatin1String(command.Key)));
    }
    QStringList shown;
    for (const QAction *title : Main().menuBar()->actions()) {
        shown.append(DescriptionOf(title->menu()->objectName(), title->text(), {}));
        for (const QAction *item : title->menu()->actions())
            shown.append(item->isSeparator() ? QStringLiteral("-")
                                             : DescriptionOf(item->objectName(), item->text(),
                                                             item->shortcut().toString(
                                                                 QKeySequence::PortableText)));
    }
    EXPECT_EQ(shown, expected);
}

TEST_F(TheMainWindow, ShowsEveryToolButtonInItsPlaceWithItsPictureAndGroupsThem) {
    const QList<QAction *> shown = Find<QToolBar>(QStringLiteral("tbEstandar"))->actions();
    qsizetype next = 0;
    int group = 0;
    for (const Command &command : ToolbarCommands()) {
        const QString tooltip = QString::fromUtf8(command.Button.Tooltip);
        if (std::exchange(group, command.Button.Place / 10) != command.Button.Place / 10 &&
            next > 0) {
            ASSERT_TRUE(shown[next++]->isSeparator()) << command.Button.Tooltip;
        }
        ASSERT_LT(next, shown.size()) << command.Button.Tooltip;
        const QAction *button = shown[next++];
        EXPECT_EQ(button->toolTip(), tooltip);
        EXPECT_EQ(button->objectName(), QStringLiteral("tbEstandar_") + tooltip);
        EXPECT_FALSE(button->icon().pixmap(24, 24).isNull()) << command.Button.Tooltip;
    }
    EXPECT_EQ(next, shown.size());
}

TEST_F(TheMainWindow, EnablesAToolButtonTogetherWithItsMenuItem) {
    const auto expectSameStates = [this](const char *where) {
        for (const Command &command : ToolbarCommands()) {
            if (!command.IsMenuItem())
                continue;
            const auto *item = Find<QAction>(QString::fromUtf8(command.Name));
            const auto *menu = qobject_cast<QMenu *>(item->associatedObjects().value(0));
            const bool canBeChosen = item->isEnabled() && menu->menuAction()->isEnabled();
            EXPECT_EQ(ToolButtonWith(QString::fromUtf8(command.Button.Tooltip))->isEnabled(),
                      canBeChosen)
                << command.Name << ' ' << where;
        }
    };
    expectSameStates("on the help page");
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    expectSameStates("in a document");
}

TEST_F(TheMainWindow, StartsWithTheHelpPagesButtonsOff) {
    for (const QString &tooltip : {QStringLiteral("Atrás"), QStringLiteral("Adelante")})
        EXPECT_FALSE(ToolButtonWith(tooltip)->isEnabled()) << qPrintable(tooltip);
}

TEST_F(TheMainWindow, HasACommandBehindEveryItemOfItsMenus) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    for (const Command &command : Commands())
        if (command.IsMenuItem()) {
            const auto *action = Find<QAction>(QString::fromUtf8(command.Name));
            ASSERT_NE(action, nullptr) << command.Name;
            EXPECT_EQ(action->isEnabled(), command.Enabled.Needs != Needs::Project) << command.Name;
        }
}

TEST_F(TheMainWindow, EnablesTheDocumentCommandsWithADocumentAndDisablesThemOnTheHelpPage) {
    const QAction *save = Find<QAction>(QStringLiteral("mnuArchivo_Guardar"));
    EXPECT_FALSE(save->isEnabled());
    EXPECT_FALSE(ToolButtonWith(QStringLiteral("Guardar"))->isEnabled());
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    EXPECT_TRUE(save->isEnabled());
    EXPECT_TRUE(ToolButtonWith(QStringLiteral("Guardar"))->isEnabled());
    Find<QTabBar>(QStringLiteral("tabDocuments"))->setCurrentIndex(0);
    EXPECT_FALSE(save->isEnabled());
    EXPECT_TRUE(Find<QMenu>(QStringLiteral("mnuVentana"))->menuAction()->isEnabled());
}

TEST_F(TheMainWindow, ShowsADocumentOnItsTabMaximisedWithTheKeyboard) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    const auto *tabs = Find<QTabBar>(QStringLiteral("tabDocuments"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("a.prg"));
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_TRUE(WindowOf(1)->isMaximized());
    EXPECT_TRUE(EditorOf(1)->hasFocus());
    EXPECT_EQ(WindowOf(1)->windowTitle(), PathOf(QStringLiteral("a.prg")));
}

TEST_F(TheMainWindow, WalksBetweenDocumentsAndHelpPage) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuVentana_Anterior"));
    EXPECT_EQ(Registry().CurrentIndex, 1);
    EXPECT_TRUE(EditorOf(1)->hasFocus());
    Trigger(QStringLiteral("mnuVentana_Anterior"));
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_TRUE(Find<QWidget>(QStringLiteral("htmlAyuda"))->hasFocus());
    Trigger(QStringLiteral("mnuVentana_Siguiente"));
    EXPECT_EQ(Registry().CurrentIndex, 1);
}

TEST_F(TheMainWindow, ReportsTheUnguardedStepForwardWithoutDocumentAsRunTimeError9) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuArchivo_Cerrar"));
    Trigger(QStringLiteral("mnuVentana_Siguiente"));
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Questions.Messages[0].Text.contains(QStringLiteral("error 9")));
}

TEST_F(TheMainWindow, FollowsAChildThatThePersonActivatesByItsFrame) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    WindowOf(2)->showNormal();
    Settle();
    ASSERT_TRUE(WindowOf(1)->isVisible());
    WindowOf(1)->mdiArea()->setActiveSubWindow(WindowOf(1));
    Settle();
    EXPECT_EQ(Registry().CurrentIndex, 1);
    EXPECT_EQ(Find<QTabBar>(QStringLiteral("tabDocuments"))->currentIndex(), 1);
}

TEST_F(TheMainWindow, ClosesDocumentsAndExitsWhileTheWindowsAreRestored) {
    for (int count = 0; count < 3; ++count)
        Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    WindowOf(3)->showNormal();
    Settle();
    Trigger(QStringLiteral("mnuArchivo_Cerrar"));
    EXPECT_EQ(Registry().DocumentCount, 2);
    EXPECT_EQ(Registry().CurrentIndex, 2);
    WindowOf(2)->showNormal();
    Settle();
    EXPECT_TRUE(Main().close());
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST_F(TheMainWindow, AsksTheMenusQuestionWhenAChildIsClosedByItsBox) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    QTest::keyClicks(EditorOf(1), QStringLiteral("x"));
    Questions.Answers = {MessageAnswer::Cancel};
    WindowOf(1)->close();
    Settle();
    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Registry().DocumentCount, 1);
    Questions.Answers = {MessageAnswer::No};
    WindowOf(1)->close();
    Settle();
    EXPECT_EQ(Registry().DocumentCount, 0);
}

TEST_F(TheMainWindow, KeepsTheHelpPageWhenItsBoxIsClicked) {
    Find<QMdiSubWindow>(QStringLiteral("frmAyuda"))->close();
    Settle();
    EXPECT_TRUE(Find<QWidget>(QStringLiteral("htmlAyuda"))->isVisible());
}

TEST_F(TheMainWindow, StaysOpenWhenThePersonRefusesToCloseADocument) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    QTest::keyClicks(EditorOf(1), QStringLiteral("x"));
    Questions.Answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(Main().close());
    EXPECT_TRUE(Main().isVisible());
    EXPECT_FALSE(QFile::exists(PathOf(QStringLiteral("Quillbox.ini"))));
    Questions.Answers = {MessageAnswer::No};
    EXPECT_TRUE(Main().close());
    EXPECT_TRUE(Read(QStringLiteral("Quillbox.ini")).startsWith("[Quillbox]"));
}

TEST_F(TheMainWindow, ShowsTheCompilersOutputWithoutItsLineEndInTheLogPane) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    Console.Output = "0 errores en la línea\r\n";
    Trigger(QStringLiteral("mnuPrograma_ComprobarErrores"));
    EXPECT_TRUE(Find<QPlainTextEdit>(QStringLiteral("txtLog"))
                    ->toPlainText()
                    .startsWith(QStringLiteral("0 errores")));
    EXPECT_FALSE(Find<QPlainTextEdit>(QStringLiteral("txtLog"))->toPlainText().contains(u'\n'));
}

TEST_F(TheMainWindow, ChecksTheDebugModeItem) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuPrograma_ModoDebug"));
    EXPECT_TRUE(Find<QAction>(QStringLiteral("mnuPrograma_ModoDebug"))->isChecked());
    Trigger(QStringLiteral("mnuPrograma_ModoDebug"));
    EXPECT_FALSE(Find<QAction>(QStringLiteral("mnuPrograma_ModoDebug"))->isChecked());
}

TEST_F(TheMainWindow, ListsFunctionsAndTypesAndJumpsToTheChosenOne) {
    Write(QStringLiteral("a.prg"), "x\r\nprocess Uno()\r\ntype Nave\r\nprocess Dos()\r\n");
    Open(QStringLiteral("a.prg"));
    auto *functions = Find<QComboBox>(QStringLiteral("cmbFunciones"));
    ASSERT_EQ(functions->count(), 2);
    EXPECT_EQ(functions->currentIndex(), -1);
    EXPECT_EQ(functions->itemText(1), QStringLiteral("Dos"));
    EXPECT_EQ(Find<QComboBox>(QStringLiteral("cmbTypes"))->itemText(0), QStringLiteral("Nave"));
    EXPECT_EQ(Find<QComboBox>(QStringLiteral("cmbLabels"))->count(), 0);
    functions->setCurrentIndex(1);
    emit functions->activated(1);
    EXPECT_EQ(WindowOf(1)->Editor().GetSel().Start.Line.Value, 3);
}

} // namespace
} // namespace Quillbox
