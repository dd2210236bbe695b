// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QDir>
#include <QFile>
#include <QImage>

namespace Quillbox {
namespace {

const QString BrowserTitle = QStringLiteral("^Explorador Media$");
/// The picture of 200 by 100 pixels in its own window.
const QString PictureTitle = QStringLiteral("^nave\\.png \\(200 × 100\\)$");

/// The program is started in the person's folder "arte", which holds a model, a picture and a
/// folder "mapas" with another model.
class MediaBrowser : public ProgramTest {
  protected:
    MediaBrowser() {
        const QDir games(Place_.filePath(QStringLiteral("juegos")));
        EXPECT_TRUE(games.mkpath(QStringLiteral("arte/mapas")));
        Write(QStringLiteral("arte/casa.x"), "x");
        Write(QStringLiteral("arte/notas.txt"), "x");
        Write(QStringLiteral("arte/mapas/isla.3DS"), "x");
        QImage picture(200, 100, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        EXPECT_TRUE(picture.save(PersonsFile(QStringLiteral("arte/nave.png"))));
        Source_ = Write(QStringLiteral("a.prg"), "uno\r\n");
    }

    /// The program begins in the folder in which it is started.
    bool StartInArt() {
        const QString script = QStringLiteral("cd \"$1\" && shift && exec \"$@\"");
        return Start({QStringLiteral("sh"), QStringLiteral("-c"), script, QStringLiteral("sh"),
                      PersonsFile(QStringLiteral("arte"))});
    }
    bool ShowBrowser() {
        if (!Press({QStringLiteral("alt+h")}) || !Person_.WaitForMenu())
            return false;
        Person_.Press({QStringLiteral("e")});
        return Person_.PressIn(BrowserTitle, {});
    }
    bool PressInBrowser(const QStringList &keys) { return Person_.PressIn(BrowserTitle, keys); }
    /// Leaves the browser for the document and saves it.
    QByteArray Saved(const QByteArray &expected) {
        EXPECT_TRUE(PressInBrowser({QStringLiteral("alt+v")}));
        EXPECT_TRUE(Person_.WaitForNoWindow(BrowserTitle));
        EXPECT_TRUE(Press({QStringLiteral("ctrl+s")}));
        return BytesOnceThey(expected, Source_);
    }
    QByteArray QuotedPath(const QString &name) const {
        return '"' + QFile::encodeName(PersonsFile(name)) + '"';
    }
    void MakeViewer(const QByteArray &script) {
        const QString folder = ProgramFile(QStringLiteral("MediaView"));
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + QStringLiteral("/mediaview.exe"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString Source_;
};

} // namespace

TEST_F(MediaBrowser, InsertsThePathOfAFileInAnotherFolderAtTheCaret) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(Open(Source_));
    ASSERT_TRUE(Press({QStringLiteral("End")}));
    ASSERT_TRUE(ShowBrowser());
    // Opens "mapas" below the open folder, then goes to its only file.
    ASSERT_TRUE(
        PressInBrowser({QStringLiteral("alt+c"), QStringLiteral("Down"), QStringLiteral("Return"),
                        QStringLiteral("alt+a"), QStringLiteral("Home"), QStringLiteral("alt+r")}));
    const QByteArray expected = "uno" + QuotedPath(QStringLiteral("arte/mapas/isla.3DS")) + "\r\n";
    EXPECT_EQ(Saved(expected), expected);
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, ComesBackWithTheFileThatWasSelected) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(Open(Source_));
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(PressInBrowser({QStringLiteral("alt+a"), QStringLiteral("End")}));
    ASSERT_TRUE(PressInBrowser({QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(BrowserTitle));
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(PressInBrowser({QStringLiteral("alt+r")}));
    const QByteArray expected = QuotedPath(QStringLiteral("arte/nave.png")) + "uno\r\n";
    EXPECT_EQ(Saved(expected), expected);
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, ShowsAPictureUntilEscapeAndKeepsTheKeyboard) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(Open(Source_));
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(
        PressInBrowser({QStringLiteral("alt+a"), QStringLiteral("End"), QStringLiteral("space")}));
    ASSERT_TRUE(Person_.PressIn(PictureTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(PictureTitle));
    EXPECT_TRUE(Person_.IsWindowThere(BrowserTitle));
    ASSERT_TRUE(PressInBrowser({QStringLiteral("Home"), QStringLiteral("alt+r")}));
    const QByteArray expected = QuotedPath(QStringLiteral("arte/casa.x")) + "uno\r\n";
    EXPECT_EQ(Saved(expected), expected);
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, TakesAPictureAwayWhenThePersonGoesToTheMainWindow) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(
        PressInBrowser({QStringLiteral("alt+a"), QStringLiteral("End"), QStringLiteral("space")}));
    ASSERT_TRUE(Person_.PressIn(PictureTitle, {}));
    ASSERT_TRUE(Person_.PressIn(MainTitle, {}));
    EXPECT_TRUE(Person_.WaitForNoWindow(PictureTitle));
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, SaysThatAModelIsNoPicture) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(
        PressInBrowser({QStringLiteral("alt+a"), QStringLiteral("Home"), QStringLiteral("space")}));
    EXPECT_EQ(Person_.ReadMessage(ErrorTitle),
              QStringLiteral("No se puede mostrar casa.x: formato no admitido."));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(ErrorTitle));
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, WarnsOfAMissingViewer) {
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(PressInBrowser(
        {QStringLiteral("alt+a"), QStringLiteral("Home"), QStringLiteral("Return")}));
    EXPECT_EQ(Person_.ReadMessage(ErrorTitle),
              QStringLiteral("El archivo %1 no existe.")
                  .arg(ProgramFile(QStringLiteral("MediaView/mediaview.exe"))));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(ErrorTitle));
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, TellsADriveThatIsGoneAndStaysAtTheOneBefore) {
    const QString home = PersonsFile(QStringLiteral("casa"));
    ASSERT_TRUE(QDir().mkdir(home));
    ASSERT_TRUE(Start({QStringLiteral("env"), QStringLiteral("HOME=") + home}));
    ASSERT_TRUE(Open(Source_));
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(QDir().rmdir(home));
    // Below the root, which holds the open folder, comes the home folder.
    ASSERT_TRUE(PressInBrowser({QStringLiteral("alt+u"), QStringLiteral("Down")}));
    EXPECT_EQ(Person_.ReadMessage(ErrorTitle),
              QStringLiteral("El dispositivo no está disponible."));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(ErrorTitle));
    ASSERT_TRUE(PressInBrowser({QStringLiteral("alt+r")}));
    const QByteArray folder = QFile::encodeName(ProgramFile(QString())); // where it was started
    const QByteArray expected = '"' + folder + "\"uno\r\n";
    EXPECT_EQ(Saved(expected), expected);
    EXPECT_TRUE(Leaves());
}

TEST_F(MediaBrowser, OpensAFileInTheViewer) {
    const QString mark = PersonsFile(QStringLiteral("marca"));
    MakeViewer("printf '%s|' \"$@\" > '" + QFile::encodeName(mark) + ".nueva'; mv '" +
               QFile::encodeName(mark) + ".nueva' '" + QFile::encodeName(mark) + "'\n");
    ASSERT_TRUE(StartInArt());
    ASSERT_TRUE(ShowBrowser());
    ASSERT_TRUE(PressInBrowser(
        {QStringLiteral("alt+a"), QStringLiteral("Home"), QStringLiteral("Return")}));
    const QByteArray expected = QFile::encodeName(PersonsFile(QStringLiteral("arte/casa.x"))) + '|';
    EXPECT_EQ(BytesOnceThey(expected, mark), expected);
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
