// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/CallLog.h"
#include "fakes/ErrorNumber.h"
#include "platform/SystemFolders.h"
#include "platform/TestFiles.h"
#include "platform/linux/MountedDrives.h"

#include <gmock/gmock.h>

namespace Quillbox {

void PrintTo(const Drive &drive, std::ostream *stream) {
    *stream << drive.Path.toStdString() << " [" << drive.Label.toStdString() << ']';
}

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// The test's folder is the person's home folder.
class TheFolders : public FolderTest {
  protected:
    TheFolders() { qputenv("HOME", QFile::encodeName(PathOf("casa"))); }
    ~TheFolders() override { qputenv("HOME", Before_); }

    void MakeFolder(const QString &name) const { ASSERT_TRUE(QDir().mkpath(PathOf(name))); }
    int ErrorOfDrive(const QString &path) {
        return ErrorNumberOf([&] { Disks.RequireDrive(path); });
    }

    SystemFolders Disks;

  private:
    QByteArray Before_ = qgetenv("HOME");
};

} // namespace

TEST_F(TheFolders, TellsFilesFromFolders) {
    MakeFolder("mapas");
    WriteTestFile(PathOf("nave.x"), "x");
    EXPECT_THAT(Disks.SubFolders(PathOf(".")).Names, ElementsAre("mapas"));
    EXPECT_THAT(Disks.Files(PathOf(".")).Names, ElementsAre("nave.x"));
}

TEST_F(TheFolders, FollowsLinksAndLeavesOutThoseThatLeadNowhere) {
    MakeFolder("mapas");
    WriteTestFile(PathOf("nave.x"), "x");
    QFile::link(PathOf("mapas"), PathOf("a"));
    QFile::link(PathOf("nave.x"), PathOf("b.x"));
    QFile::link(PathOf("nada"), PathOf("c.x"));
    EXPECT_THAT(Disks.SubFolders(PathOf(".")).Names, UnorderedElementsAre("mapas", "a"));
    EXPECT_THAT(Disks.Files(PathOf(".")).Names, UnorderedElementsAre("nave.x", "b.x"));
}

TEST_F(TheFolders, LeavesOutWhatIsHidden) {
    MakeFolder(".git");
    WriteTestFile(PathOf(".nave.x"), "x");
    EXPECT_THAT(Disks.SubFolders(PathOf(".")).Names, IsEmpty());
    EXPECT_THAT(Disks.Files(PathOf(".")).Names, IsEmpty());
}

TEST_F(TheFolders, KeepsAccentsAndOddLettersOfNames) {
    WriteTestFile(PathOf("ñandú \"1\"\n.x"), "x");
    EXPECT_THAT(Disks.Files(PathOf(".")).Names, ElementsAre("ñandú \"1\"\n.x"));
}

TEST_F(TheFolders, SaysThatAFolderIsGone) {
    EXPECT_EQ(Disks.Files(PathOf("nada")).State, FolderState::Missing);
    EXPECT_EQ(Disks.SubFolders(PathOf("nada")).State, FolderState::Missing);
}

TEST_F(TheFolders, SaysThatAFolderMayNotBeRead) {
    MakeFolder("secreto");
    SetMode(PathOf("secreto"), 0);
    SetMode(PathOf("."), 0755);
    const OrdinaryUser user;
    EXPECT_EQ(Disks.Files(PathOf("secreto")).State, FolderState::Denied);
}

TEST_F(TheFolders, HasTheRootAndTheHomeFolderAsDrives) {
    MakeFolder("casa");
    EXPECT_THAT(Disks.Drives(), Contains(Drive{"/", "Sistema"}));
    EXPECT_THAT(Disks.Drives(), Contains(Drive{PathOf("casa"), "Personal"}));
    EXPECT_EQ(ErrorOfDrive("/"), 0);
    EXPECT_EQ(ErrorOfDrive(PathOf("casa")), 0);
}

TEST_F(TheFolders, MissesADriveWhoseFolderIsGone) {
    MakeFolder("casa");
    ASSERT_EQ(ErrorOfDrive(PathOf("casa")), 0);
    ASSERT_TRUE(QDir().rmdir(PathOf("casa")));
    EXPECT_EQ(ErrorOfDrive(PathOf("casa")), 68);
}

TEST_F(TheFolders, MissesADriveThatLeftItsFolderBehind) {
    MakeFolder("usb");
    EXPECT_EQ(ErrorOfDrive(PathOf("usb")), 68);
}

TEST_F(TheFolders, BeginsInTheCurrentFolder) {
    EXPECT_EQ(QFileInfo(Disks.CurrentFolder()).canonicalFilePath(),
              QFileInfo(PathOf(".")).canonicalFilePath());
}

TEST_F(TheFolders, BeginsAtHomeWhenTheCurrentFolderIsGone) {
    MakeFolder("casa");
    MakeFolder("luego");
    QDir::setCurrent(PathOf("luego"));
    ASSERT_TRUE(QDir().rmdir(PathOf("luego")));
    EXPECT_EQ(Disks.CurrentFolder(), PathOf("casa"));
}

TEST(MountedDrives, AreTheDisksThatPeopleKnow) {
    const std::vector<Mount> mounts = {
        {"/mnt/datos", "ext4", "Datos"},
        {"/", "ext4", ""},
        {"/proc", "proc", ""},
        {"/media/eva/USB", "vfat", "USB"},
        {"/run/media/eva/DVD", "iso9660", ""},
        {"/home", "ext4", ""},
        {"/juegos", "fuse.sshfs", ""},
        {"/boot/efi", "vfat", ""},
        {"/run/user/1000", "tmpfs", ""},
        {"/run/user/1000/doc", "fuse.portal", ""},
        {"/snap/qt/1", "squashfs", ""},
        {"/var/lib/docker/overlay2", "overlay", ""},
        {"/mnt/memoria", "tmpfs", ""},
    };
    EXPECT_THAT(DrivesOf("/home/eva", mounts),
                ElementsAre(Drive{"/", "Sistema"}, Drive{"/home/eva", "Personal"},
                            Drive{"/home", ""}, Drive{"/juegos", ""},
                            Drive{"/media/eva/USB", "USB"}, Drive{"/mnt/datos", "Datos"},
                            Drive{"/run/media/eva/DVD", ""}));
}

TEST(MountedDrives, AreListedOnce) {
    EXPECT_THAT(DrivesOf("/", {{"/mnt/a", "ext4", ""}, {"/mnt/a", "ext4", ""}, {"/", "btrfs", ""}}),
                ElementsAre(Drive{"/", "Sistema"}, Drive{"/mnt/a", ""}));
}

} // namespace Quillbox
