// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Menus.h"
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

class MainWindowTest : public UiProgram {
  protected:
    /// There are no word files, which the start warns about.
    MainWindowTest() {
        Start();
        Questions.Messages.clear();
    }

    QAction *ToolButtonWith(const QString &tooltip) {
        for (QAction *action : Find<QToolBar>(QStringLiteral("tbEstandar"))->actions())
            if (action->toolTip() == tooltip)
                return action;
        return nullptr;
    }
    QStringList MenuTitles() {
        QStringList titles;
        for (const QAction *action : Main().menuBar()->actions())
            titles.append(action->text());
        return titles;
    }
};

TEST_F(MainWindowTest, StartsOnTheHelpPageWithoutDocument) {
    EXPECT_TRUE(Main().windowTitle().startsWith(
        QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>")));
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_EQ(Find<QTabBar>(QStringLiteral("tabDocuments"))->count(), 1);
    EXPECT_TRUE(Find<QWidget>(QStringLiteral("htmlAyuda"))->isVisible());
}

TEST_F(MainWindowTest, ShowsTheSixMenusInTheirOrder) {
    EXPECT_EQ(MenuTitles(), QStringList({"&Archivo", "&Edición", "&Programa", "&Herramientas",
                                         "&Ventana", "A&yuda"}));
}

TEST_F(MainWindowTest, CarriesTheControlNameOfEveryMenuItem) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (*entry.Menu == '\0' || *entry.Name == '\0')
            continue;
        EXPECT_NE(Find<QAction>(QString::fromUtf8(entry.Name)), nullptr) << entry.Name;
    }
}

TEST_F(MainWindowTest, HasAToolButtonWithPictureForEveryTooltip) {
    for (const ToolButton &button : ToolButtons()) {
        if (*button.Tooltip == '\0')
            continue;
        const QAction *action = ToolButtonWith(QString::fromUtf8(button.Tooltip));
        ASSERT_NE(action, nullptr) << button.Tooltip;
        EXPECT_FALSE(action->icon().pixmap(24, 24).isNull()) << button.Tooltip;
    }
}

/// Wait for a project.
const QStringList ProjectItems = {QStringLiteral("mnuArchivo_GuardarProyecto"),
                                  QStringLiteral("mnuArchivo_GuardarProyectoComo"),
                                  QStringLiteral("mnuArchivo_CerrarProyecto")};

TEST_F(MainWindowTest, HasACommandBehindEveryItemOfItsMenus) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    for (const MenuEntry &entry : MenuEntries()) {
        const QString name = QString::fromUtf8(entry.Name);
        if (name.isEmpty() || *entry.Menu == '\0' || ProjectItems.contains(name))
            continue;
        const auto *action = Find<QAction>(name);
        ASSERT_NE(action, nullptr) << entry.Name;
        EXPECT_TRUE(action->isEnabled()) << entry.Name;
    }
}

TEST_F(MainWindowTest, EnablesTheDocumentCommandsWithADocumentAndDisablesThemOnTheHelpPage) {
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

TEST_F(MainWindowTest, ShowsADocumentOnItsTabMaximisedWithTheKeyboard) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    const auto *tabs = Find<QTabBar>(QStringLiteral("tabDocuments"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("a.prg"));
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_TRUE(WindowOf(1)->isMaximized());
    EXPECT_TRUE(EditorOf(1)->hasFocus());
    EXPECT_EQ(WindowOf(1)->windowTitle(), PathOf(QStringLiteral("a.prg")));
}

TEST_F(MainWindowTest, WalksBetweenDocumentsAndHelpPage) {
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

TEST_F(MainWindowTest, ReportsTheUnguardedStepForwardWithoutDocumentAsRunTimeError9) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuArchivo_Cerrar"));
    Trigger(QStringLiteral("mnuVentana_Siguiente"));
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Questions.Messages[0].Text.contains(QStringLiteral("error 9")));
}

TEST_F(MainWindowTest, FollowsAChildThatThePersonActivatesByItsFrame) {
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

TEST_F(MainWindowTest, ClosesDocumentsAndExitsWhileTheWindowsAreRestored) {
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

TEST_F(MainWindowTest, AsksTheMenusQuestionWhenAChildIsClosedByItsBox) {
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

TEST_F(MainWindowTest, KeepsTheHelpPageWhenItsBoxIsClicked) {
    Find<QMdiSubWindow>(QStringLiteral("frmAyuda"))->close();
    Settle();
    EXPECT_TRUE(Find<QWidget>(QStringLiteral("htmlAyuda"))->isVisible());
}

TEST_F(MainWindowTest, StaysOpenWhenThePersonRefusesToCloseADocument) {
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

TEST_F(MainWindowTest, ShowsTheCompilersOutputWithoutItsLineEndInTheLogPane) {
    Write(QStringLiteral("a.prg"), "Print 1\r\n");
    Open(QStringLiteral("a.prg"));
    Console.Output = "0 errores en la línea\r\n";
    Trigger(QStringLiteral("mnuPrograma_ComprobarErrores"));
    EXPECT_TRUE(Find<QPlainTextEdit>(QStringLiteral("txtLog"))
                    ->toPlainText()
                    .startsWith(QStringLiteral("0 errores")));
    EXPECT_FALSE(Find<QPlainTextEdit>(QStringLiteral("txtLog"))->toPlainText().contains(u'\n'));
}

TEST_F(MainWindowTest, ChecksTheDebugModeItem) {
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("mnuPrograma_ModoDebug"));
    EXPECT_TRUE(Find<QAction>(QStringLiteral("mnuPrograma_ModoDebug"))->isChecked());
    Trigger(QStringLiteral("mnuPrograma_ModoDebug"));
    EXPECT_FALSE(Find<QAction>(QStringLiteral("mnuPrograma_ModoDebug"))->isChecked());
}

TEST_F(MainWindowTest, ListsFunctionsAndTypesAndJumpsToTheChosenOne) {
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
