// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemFiles.h"

#include "platform/TestFiles.h"

namespace Quillbox {

using TheSystemFiles = FolderTest;

TEST_F(TheSystemFiles, ReadsAndWritesAllBytes) {
    SystemFiles files;
    EXPECT_TRUE(files.Write(PathOf("a.txt"), Pattern(3000)));
    EXPECT_EQ(files.Read(PathOf("a.txt")), Pattern(3000));
    EXPECT_TRUE(files.Write(PathOf("a.txt"), ""));
    EXPECT_EQ(files.Read(PathOf("a.txt")), QByteArray());
}

TEST_F(TheSystemFiles, FindsWindowsPaths) {
    SystemFiles files;
    QDir().mkdir(PathOf("Media"));
    EXPECT_TRUE(files.Write("media\\Lista.txt", "x"));
    EXPECT_EQ(ReadTestFile(PathOf("Media/Lista.txt")), "x");
    EXPECT_TRUE(files.CanRead("MEDIA\\LISTA.TXT"));
    EXPECT_EQ(files.Read("MEDIA\\LISTA.TXT"), "x");
}

TEST_F(TheSystemFiles, CannotReadAMissingFileOrAFolder) {
    SystemFiles files;
    QDir().mkdir(PathOf("carpeta"));
    for (const QString &name :
         {PathOf("no.txt"), PathOf("carpeta"), PathOf("carpeta/"), QString()}) {
        EXPECT_FALSE(files.CanRead(name)) << name.toStdString();
        EXPECT_FALSE(files.Read(name)) << name.toStdString();
    }
}

TEST_F(TheSystemFiles, CannotReadAPipe) {
    ASSERT_EQ(::mkfifo(PathOf("tubo").toUtf8(), 0600), 0);
    EXPECT_FALSE(SystemFiles().CanRead(PathOf("tubo")));
    EXPECT_FALSE(SystemFiles().Read(PathOf("tubo")));
}

TEST_F(TheSystemFiles, CannotReadWithoutPermission) {
    WriteTestFile(PathOf("a.txt"), "x");
    SetMode(PathOf("a.txt"), 0);
    SetMode(PathOf("."), 0755);
    const OrdinaryUser user;
    EXPECT_FALSE(SystemFiles().CanRead(PathOf("a.txt")));
    EXPECT_FALSE(SystemFiles().Read(PathOf("a.txt")));
}

TEST_F(TheSystemFiles, CannotWriteAProtectedFile) {
    WriteTestFile(PathOf("a.txt"), "viejo");
    SetMode(PathOf("a.txt"), 0444);
    EXPECT_FALSE(SystemFiles().Write(PathOf("a.txt"), "nuevo"));
    EXPECT_EQ(ReadTestFile(PathOf("a.txt")), "viejo");
}

} // namespace Quillbox
