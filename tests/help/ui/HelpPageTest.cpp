// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/UiProgram.h"
#include "help/ui/HelpFolder.h"

#include <QLabel>
#include <QStatusBar>
#include <QTextBrowser>

namespace Quillbox {
namespace {

class TheHelpPage : public UiProgram {
  protected:
    TheHelpPage() {
        QDir(Folder.path()).mkpath(QStringLiteral("Ayuda"));
        Write(QStringLiteral("Ayuda/index.htm"),
              "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>"
              "<h1>Inicio \xF1</h1><a href='otra.htm'>otra</a>");
        Write(QStringLiteral("Ayuda/otra.htm"), "<h1>Otra</h1>");
    }
    /// Without the warnings about the word files, which this folder has not.
    void Start() {
        UiProgram::Start();
        Questions.Messages.clear();
    }
    /// Its window is outside the main window while a maximised document is active.
    QTextBrowser *Browser() {
        if (!Browser_)
            Browser_ = Find<QTextBrowser>(QStringLiteral("htmlAyuda"));
        return Browser_;
    }
    void ShowPage(const QByteArray &page) {
        Write(QStringLiteral("Ayuda/index.htm"), page);
        Start();
        ASSERT_NE(Browser(), nullptr);
    }
    void Follow(const QString &link) {
        Trigger(QStringLiteral("mnuVentana_Ayuda"));
        ClickOn(*Browser(), link);
        Settle();
    }
    bool IsButtonEnabled(const QString &tooltip) {
        return Find<QAction>(QStringLiteral("tbEstandar_") + tooltip)->isEnabled();
    }

  private:
    QTextBrowser *Browser_ = nullptr;
};

TEST_F(TheHelpPage, ShowsTheIndexPageOfTheProgramFolderAtTheStart) {
    Start();
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio ñ")));
    EXPECT_EQ(Find<QLabel>(QStringLiteral("stbBarraEstado_Panel1"))->text(),
              QStringLiteral("Ayuda de Quillbox"));
}

TEST_F(TheHelpPage, SaysWhichPageIsMissing) {
    QFile::remove(PathOf(QStringLiteral("Ayuda/index.htm")));
    Start();
    EXPECT_TRUE(Browser()->toPlainText().contains(PathOf(QStringLiteral("Ayuda/index.htm"))));
}

TEST_F(TheHelpPage, LeadsBackFromAPageThatIsMissing) {
    Start();
    Program_->Options().HelpPath = PathOf(QStringLiteral("Ayuda/falta.htm"));
    Trigger(QStringLiteral("tbEstandar_Inicio"));
    ASSERT_TRUE(Browser()->toPlainText().contains(QStringLiteral("falta.htm")));
    Trigger(QStringLiteral("tbEstandar_Atrás"));
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio")));
}

TEST_F(TheHelpPage, EnablesBackAndForwardWithTheHistory) {
    Start();
    EXPECT_FALSE(IsButtonEnabled(QStringLiteral("Atrás")));
    Browser()->setSource(QUrl::fromLocalFile(PathOf(QStringLiteral("Ayuda/otra.htm"))));
    EXPECT_TRUE(IsButtonEnabled(QStringLiteral("Atrás")));
    EXPECT_FALSE(IsButtonEnabled(QStringLiteral("Adelante")));
    Trigger(QStringLiteral("tbEstandar_Atrás"));
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio")));
    EXPECT_TRUE(IsButtonEnabled(QStringLiteral("Adelante")));
}

TEST_F(TheHelpPage, ShowsTheHelpPathOnTheHomeButtonAndComesForward) {
    Start();
    Program_->Options().HelpPath = PathOf(QStringLiteral("Ayuda/otra.htm"));
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("tbEstandar_Inicio"));
    EXPECT_EQ(Browser()->toPlainText(), QStringLiteral("Otra"));
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_TRUE(Browser()->hasFocus());
}

TEST_F(TheHelpPage, OpensASourceAsADocumentAndStaysWhereItIs) {
    Write("Ayuda/ejemplo.bb", "Cls");
    ShowPage("<a href='ejemplo.bb'>ejemplo</a>");
    Follow("ejemplo");
    ASSERT_EQ(Registry().DocumentCount, 1);
    EXPECT_EQ(Registry().CurrentIndex, 1);
    EXPECT_EQ(WindowOf(1)->Caption(), PathOf("Ayuda/ejemplo.bb"));
    EXPECT_EQ(WindowOf(1)->Editor().Text(), "Cls");
    EXPECT_TRUE(EditorOf(1)->hasFocus());
    EXPECT_EQ(Browser()->toPlainText(), "ejemplo");
    EXPECT_FALSE(IsButtonEnabled("Atrás"));
}

TEST_F(TheHelpPage, LoadsAnOpenSourceFromDiskAgain) {
    Write("Ayuda/ejemplo.bb", "Cls");
    ShowPage("<a href='ejemplo.bb'>ejemplo</a>");
    Follow("ejemplo");
    WindowOf(1)->Editor().ReplaceSel("x");
    ASSERT_TRUE(WindowOf(1)->Editor().IsModified());
    Write("Ayuda/ejemplo.bb", "Flip");
    Follow("ejemplo");
    EXPECT_EQ(Registry().DocumentCount, 1);
    EXPECT_EQ(Registry().CurrentIndex, 1);
    EXPECT_EQ(WindowOf(1)->Editor().Text(), "Flip");
    EXPECT_FALSE(WindowOf(1)->Editor().IsModified());
    EXPECT_TRUE(Questions.Messages.empty());
}

TEST_F(TheHelpPage, OpensASourceInAFolderWithADifficultName) {
    QDir(Folder.path()).mkpath("Ayuda/mis juegos 100%");
    Write("Ayuda/mis juegos 100%/el año.bb", "Cls");
    ShowPage("<a href='mis%20juegos%20100%25/el%20a%C3%B1o.bb'>ejemplo</a>");
    Follow("ejemplo");
    ASSERT_EQ(Registry().DocumentCount, 1);
    EXPECT_EQ(WindowOf(1)->Caption(), PathOf("Ayuda/mis juegos 100%/el año.bb"));
}

TEST_F(TheHelpPage, ReportsAMissingSourceOnceAndStaysForward) {
    ShowPage("<a href='falta.bb'>ejemplo</a>");
    Follow("ejemplo");
    EXPECT_EQ(Registry().DocumentCount, 0);
    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Browser()->isVisible());
}

TEST_F(TheHelpPage, HandsWebLinksToTheSystem) {
    ShowPage("<a href='https://ejemplo.org/'>web</a> <a href='mailto:a@b.es'>correo</a>");
    Follow("web");
    Follow("correo");
    EXPECT_EQ(Log.CallsOf({"programs."}),
              (std::vector<std::string>{"programs.OpenAddress https://ejemplo.org/",
                                        "programs.OpenAddress mailto:a@b.es"}));
    EXPECT_EQ(Browser()->toPlainText(), "web correo");
}

TEST_F(TheHelpPage, ReportsAMissingWebBrowserAndGoesOn) {
    Launcher.Missing = true;
    ShowPage("<a href='https://ejemplo.org/'>web</a>");
    Follow("web");
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Questions.Messages[0].Text.contains("error 53"));
}

TEST_F(TheHelpPage, LeavesTheHistoryAloneWhileADocumentIsActive) {
    Start();
    ClickOn(*Browser(), "otra");
    ASSERT_EQ(Browser()->toPlainText(), "Otra");
    Trigger("mnuArchivo_Nuevo");
    Trigger("tbEstandar_Atrás");
    EXPECT_EQ(Browser()->toPlainText(), "Otra");
    Trigger("mnuVentana_Ayuda");
    Trigger("tbEstandar_Atrás");
    EXPECT_TRUE(Browser()->toPlainText().startsWith("Inicio"));
    Trigger("tbEstandar_Adelante");
    EXPECT_EQ(Browser()->toPlainText(), "Otra");
}

TEST_F(TheHelpPage, ComesForwardWithItsPageForContextualHelp) {
    Start();
    ClickOn(*Browser(), "otra");
    Trigger("mnuArchivo_Nuevo");
    Trigger("mnuAyuda_Contextual");
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_EQ(Browser()->toPlainText(), "Otra");
    EXPECT_TRUE(Browser()->hasFocus());
}

TEST_F(TheHelpPage, HasTheKeyThatFindsWhetherTheEditMenuIsOnOrOff) {
    Start();
    auto *bar = Find<QWidget>("barBuscarEnPagina");
    for (const bool enabled : {false, true}) {
        Main().EnableCommand("mnuEdicion", enabled);
        Browser()->setFocus();
        QTest::keyClick(Browser(), Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(bar->isVisible());
        EXPECT_TRUE(Questions.Messages.empty());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(bar->isVisible());
    }
}

TEST_F(TheHelpPage, FillsTheWindowDownToItsStatusBar) {
    Start();
    const auto *client = Find<QMdiSubWindow>("frmAyuda")->widget();
    const auto *statusBar = client->findChild<QStatusBar *>("stbBarraEstado");
    Main().resize(Main().width() - 150, Main().height() - 70);
    Settle();
    EXPECT_EQ(Browser()->pos(), QPoint(0, 0));
    EXPECT_EQ(Browser()->width(), client->width());
    EXPECT_EQ(Browser()->height(), statusBar->y());
    EXPECT_EQ(statusBar->geometry().bottom(), client->rect().bottom());
    EXPECT_EQ(Find<QLabel>("stbBarraEstado_Panel1")->minimumWidth(), client->width());
}

TEST_F(TheHelpPage, OpensASourceThatIsChosenAsTheHomePage) {
    Start();
    Program_->Options().HelpPath = Write("juego.bb", "Cls");
    Trigger("tbEstandar_Inicio");
    EXPECT_EQ(Registry().DocumentCount, 1);
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_TRUE(Browser()->toPlainText().startsWith("Inicio"));
}

TEST_F(TheHelpPage, HasTheCommandsOfTheToolsMenu) {
    Start();
    Log.Clear();
    Trigger("mnuHerramientas_Calculadora");
    Trigger("mnuAyuda_Inkwell");
    EXPECT_EQ(
        Log.CallsOf({"programs."}),
        (std::vector<std::string>{"programs.Start calc.exe Minimized",
                                  "programs.Start explorer.exe " +
                                      PathOf("Ayuda/index.htm").toStdString() + " Maximized"}));
    Trigger("mnuHerramientas_ScaffolderGenerator");
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Caption, "Error");
}

} // namespace
} // namespace Quillbox
