// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/FolderPaths.h"

#include "fakes/CallLog.h"

#include <gmock/gmock.h>

namespace Quillbox {

void PrintTo(const FolderEntry &entry, std::ostream *stream) {
    *stream << entry.Depth << (entry.Opened ? " open " : " closed ") << entry.Path.toStdString();
}

namespace {

using testing::ElementsAre;

TEST(FolderPaths, PutOneSeparatorBetweenFolderAndName) {
    EXPECT_EQ(JoinedPath("/a", "b"), "/a/b");
    EXPECT_EQ(JoinedPath("/", "b"), "/b");
}

TEST(FolderPaths, LeadUpToTheRootAndNoFurther) {
    EXPECT_EQ(ParentFolder("/a/b"), "/a");
    EXPECT_EQ(ParentFolder("/a"), "/");
    EXPECT_EQ(ParentFolder("/"), "");
}

TEST(FolderEntries, LeadFromTheRootToTheOpenFolderAndThenToItsSubFolders) {
    EXPECT_THAT(FolderEntriesOf("/juego/media", {"mapas", "naves"}),
                ElementsAre(FolderEntry{"/", "/", 0, true}, FolderEntry{"juego", "/juego", 1, true},
                            FolderEntry{"media", "/juego/media", 2, true},
                            FolderEntry{"mapas", "/juego/media/mapas", 3, false},
                            FolderEntry{"naves", "/juego/media/naves", 3, false}));
}

TEST(FolderEntries, OfTheRootBeginWithIt) {
    EXPECT_THAT(
        FolderEntriesOf("/", {"home"}),
        ElementsAre(FolderEntry{"/", "/", 0, true}, FolderEntry{"home", "/home", 1, false}));
}

TEST(TheDriveOfAFolder, IsTheNearestAboveIt) {
    const std::vector<Drive> drives = {{"/", ""}, {"/home/eva", ""}, {"/media/eva/USB", ""}};
    EXPECT_EQ(FindDriveHolding("/home/eva/juegos", drives), "/home/eva");
    EXPECT_EQ(FindDriveHolding("/home/eva", drives), "/home/eva");
    EXPECT_EQ(FindDriveHolding("/home/evaristo", drives), "/");
    EXPECT_EQ(FindDriveHolding("/media/eva", drives), "/");
}

TEST(TheDriveOfAFolder, IsMissingWithoutOneAboveIt) {
    EXPECT_EQ(FindDriveHolding("/home", {{"/media", ""}}), "");
}

} // namespace
} // namespace Quillbox
