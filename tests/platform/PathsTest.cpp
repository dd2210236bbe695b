// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"

#include "platform/TestFiles.h"

namespace Quillbox {

namespace {

class SystemPaths : public FolderTest {
  protected:
    SystemPaths() { qputenv("WINEPREFIX", PathOf("wine").toUtf8()); }
    ~SystemPaths() override { qunsetenv("WINEPREFIX"); }

    void MakeFile(const QString &name) const {
        QDir().mkpath(QFileInfo(PathOf(name)).path());
        WriteTestFile(PathOf(name), "x");
    }
};

} // namespace

TEST(Paths, SeparateNamesAsLinuxDoes) {
    EXPECT_EQ(PathSeparator, u'/');
    EXPECT_STREQ(LineEnd, "\n");
}

TEST_F(SystemPaths, LeavesAnEmptyPathEmpty) { EXPECT_EQ(SystemPath(QString()), QString()); }

TEST_F(SystemPaths, LeavesAnExistingPathAsItStands) {
    MakeFile("media/Nave.x");
    for (const QString &path : {PathOf("media/Nave.x"), QString("media/Nave.x"),
                                QString("media//Nave.x"), QString("./media/"), QString("/")})
        EXPECT_EQ(SystemPath(path), path);
}

TEST_F(SystemPaths, FindsBackslashesAsSeparators) {
    MakeFile("media/sub/nave.x");
    EXPECT_EQ(SystemPath("media\\sub\\nave.x"), "media/sub/nave.x");
    EXPECT_EQ(SystemPath(PathOf("media\\sub/nave.x")), PathOf("media/sub/nave.x"));
    EXPECT_EQ(SystemPath(PathOf("media\\\\sub\\nave.x")), PathOf("media/sub/nave.x"));
    EXPECT_EQ(SystemPath(".\\media\\..\\media\\sub\\nave.x"), "./media/../media/sub/nave.x");
}

TEST_F(SystemPaths, FindsAnotherLetterCaseInEveryName) {
    MakeFile("Media/Año/Nave.X");
    EXPECT_EQ(SystemPath("MEDIA\\AÑO\\nave.x"), "Media/Año/Nave.X");
    EXPECT_EQ(SystemPath(PathOf("media/año/NAVE.x")), PathOf("Media/Año/Nave.X"));
}

TEST_F(SystemPaths, PrefersTheExactNameAndElseTheFirstInByteOrder) {
    MakeFile("nave.x");
    MakeFile("NAVE.x");
    MakeFile("Nave.x");
    EXPECT_EQ(SystemPath("nave.x"), "nave.x");
    EXPECT_EQ(SystemPath("nave.X"), "NAVE.x");
}

TEST_F(SystemPaths, EntersOnlyFolders) {
    MakeFile("MEDIA");
    MakeFile("media/nave.x");
    EXPECT_EQ(SystemPath("Media\\nave.x"), "media/nave.x");
    EXPECT_EQ(SystemPath("MEDIA\\nave.x"), "media/nave.x");
}

TEST_F(SystemPaths, KeepsTheUnmatchedRestAsWritten) {
    MakeFile("Media/nave.x");
    EXPECT_EQ(SystemPath("media\\Nuevo.prg"), "Media/Nuevo.prg");
    EXPECT_EQ(SystemPath("media\\Otra\\Nuevo.prg"), "Media/Otra/Nuevo.prg");
    EXPECT_EQ(SystemPath(PathOf("Nuevo.prg")), PathOf("Nuevo.prg"));
}

TEST_F(SystemPaths, KeepsASeparatorAtTheEnd) {
    MakeFile("Media/nave.x");
    EXPECT_EQ(SystemPath("media\\"), "Media/");
    EXPECT_EQ(SystemPath("nada\\"), "nada/");
}

TEST_F(SystemPaths, FindsALinuxNameThatContainsABackslash) {
    MakeFile("a\\b.prg");
    MakeFile("c\\d/e.prg");
    EXPECT_EQ(SystemPath("a\\b.prg"), "a\\b.prg");
    EXPECT_EQ(SystemPath("c\\d/nuevo.prg"), "c\\d/nuevo.prg");
    EXPECT_EQ(SystemPath("c\\d/E.PRG"), "c\\d/e.prg");
}

TEST_F(SystemPaths, TakesDriveZForTheWholeFileSystem) {
    MakeFile("Media/nave.x");
    const QString windows = "Z:" + PathOf("media/nave.x").replace('/', '\\');
    EXPECT_EQ(SystemPath(windows), PathOf("Media/nave.x"));
    EXPECT_EQ(SystemPath("z:\\"), "/");
    EXPECT_EQ(SystemPath("Z:"), "/");
}

TEST_F(SystemPaths, FindsTheOtherDrivesInTheWinePrefix) {
    MakeFile("wine/drive_c/Fenix/fxc.exe");
    EXPECT_EQ(SystemPath("C:\\fenix\\FXC.EXE"), PathOf("wine/drive_c/Fenix/fxc.exe"));
    EXPECT_EQ(SystemPath("c:/Fenix/nuevo.prg"), PathOf("wine/drive_c/Fenix/nuevo.prg"));
}

TEST_F(SystemPaths, FindsTheDrivesInTheHomeFolderWithoutAWinePrefix) {
    qunsetenv("WINEPREFIX");
    const QByteArray home = qgetenv("HOME");
    MakeFile("casa/.wine/drive_d/juego.prg");
    qputenv("HOME", PathOf("casa").toUtf8());
    EXPECT_EQ(SystemPath("D:\\Juego.prg"), PathOf("casa/.wine/drive_d/juego.prg"));
    qputenv("HOME", home);
}

TEST_F(SystemPaths, KeepsADriveThatDoesNotExist) {
    EXPECT_EQ(SystemPath("Q:\\juegos\\uno.prg"), "Q:/juegos/uno.prg");
}

TEST_F(SystemPaths, FindsALinkThatLeadsNowhere) {
    ASSERT_TRUE(QFile::link(PathOf("no-existe"), PathOf("Enlace.prg")));
    EXPECT_EQ(SystemPath(PathOf("Enlace.prg")), PathOf("Enlace.prg"));
    EXPECT_EQ(SystemPath("enlace.prg"), "Enlace.prg");
}

} // namespace Quillbox
