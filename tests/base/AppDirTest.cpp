// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/AppDir.h"

#include "base/Paths.h"
#include "fakes/CallLog.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

TEST(AppDir, IsTheProgramFolderAndASeparator) {
    EXPECT_EQ(AppDirOf("/opt/quillbox"), QString("/opt/quillbox") + PathSeparator);
}

TEST(AppDir, DoublesTheSeparatorOfARoot) {
    EXPECT_EQ(AppDirOf(QString(PathSeparator)), QString(PathSeparator) + PathSeparator);
}

TEST(AppDir, HoldsTheFolderOfTheHelpPages) {
    EXPECT_EQ(HelpPagePath(AppDirOf("/opt/quillbox"), "buscar.htm"),
              QString("/opt/quillbox") + PathSeparator + "Ayuda" + PathSeparator + "buscar.htm");
}

} // namespace
} // namespace Quillbox
