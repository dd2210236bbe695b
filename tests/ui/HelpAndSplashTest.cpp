// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmLogo.h"
#include "ui/UiProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QTextBrowser>

namespace Quillbox {
namespace {

class HelpPageTest : public UiProgram {
  protected:
    HelpPageTest() {
        QDir(Folder.path()).mkpath(QStringLiteral("Ayuda"));
        Write(QStringLiteral("Ayuda/index.htm"),
              "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>"
              "<h1>Inicio \xF1</h1><a href='otra.htm'>otra</a>");
        Write(QStringLiteral("Ayuda/otra.htm"), "<h1>Otra</h1>");
    }
    QTextBrowser *Browser() { return Find<QTextBrowser>(QStringLiteral("htmlAyuda")); }
    bool IsButtonEnabled(const QString &tooltip) {
        return Find<QAction>(QStringLiteral("tbEstandar_") + tooltip)->isEnabled();
    }
};

TEST_F(HelpPageTest, ShowsTheIndexPageOfTheProgramFolderAtTheStart) {
    Start();
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio ñ")));
    EXPECT_EQ(Find<QLabel>(QStringLiteral("stbBarraEstado_Panel1"))->text(),
              QStringLiteral("Ayuda de Quillbox"));
}

TEST_F(HelpPageTest, SaysWhichPageIsMissing) {
    QFile::remove(PathOf(QStringLiteral("Ayuda/index.htm")));
    Start();
    EXPECT_TRUE(Browser()->toPlainText().contains(PathOf(QStringLiteral("Ayuda/index.htm"))));
}

TEST_F(HelpPageTest, LeadsBackFromAPageThatIsMissing) {
    Start();
    Program_->Options().HelpPath = PathOf(QStringLiteral("Ayuda/falta.htm"));
    Trigger(QStringLiteral("tbEstandar_Inicio"));
    ASSERT_TRUE(Browser()->toPlainText().contains(QStringLiteral("falta.htm")));
    Trigger(QStringLiteral("tbEstandar_Atrás"));
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio")));
}

TEST_F(HelpPageTest, EnablesBackAndForwardWithTheHistory) {
    Start();
    EXPECT_FALSE(IsButtonEnabled(QStringLiteral("Atrás")));
    Browser()->setSource(QUrl::fromLocalFile(PathOf(QStringLiteral("Ayuda/otra.htm"))));
    EXPECT_TRUE(IsButtonEnabled(QStringLiteral("Atrás")));
    EXPECT_FALSE(IsButtonEnabled(QStringLiteral("Adelante")));
    Trigger(QStringLiteral("tbEstandar_Atrás"));
    EXPECT_TRUE(Browser()->toPlainText().startsWith(QStringLiteral("Inicio")));
    EXPECT_TRUE(IsButtonEnabled(QStringLiteral("Adelante")));
}

TEST_F(HelpPageTest, ShowsTheHelpPathOnTheHomeButtonAndComesForward) {
    Start();
    Program_->Options().HelpPath = PathOf(QStringLiteral("Ayuda/otra.htm"));
    Trigger(QStringLiteral("mnuArchivo_Nuevo"));
    Trigger(QStringLiteral("tbEstandar_Inicio"));
    EXPECT_EQ(Browser()->toPlainText(), QStringLiteral("Otra"));
    EXPECT_EQ(Registry().CurrentIndex, 0);
    EXPECT_TRUE(Browser()->hasFocus());
}

TEST(SplashWindow, HandsOverAfterOneIntervalAndGoesAfterTheNext) {
    QtEventLoop events;
    QElapsedTimer clock;
    clock.start();
    qint64 shownAfter = -1;
    frmLogo splash([&] { shownAfter = clock.elapsed(); }, events);
    splash.show();
    QTest::qWait(SplashMilliseconds / 2);
    EXPECT_EQ(shownAfter, -1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return shownAfter >= 0; }));
    EXPECT_GE(shownAfter, SplashMilliseconds);
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }));
    EXPECT_GE(clock.elapsed(), 2 * SplashMilliseconds);
}

TEST(SplashWindow, StandsInTheMiddleOfTheScreenWithPictureAndName) {
    QtEventLoop events;
    frmLogo splash([] {}, events);
    EXPECT_EQ(splash.geometry().center(), splash.screen()->geometry().center());
    EXPECT_FALSE(splash.findChild<QLabel *>(QStringLiteral("Picture1"))->pixmap().isNull());
    EXPECT_EQ(splash.findChild<QLabel *>(QStringLiteral("Label1"))->text(),
              QStringLiteral("Quillbox"));
}

} // namespace
} // namespace Quillbox
