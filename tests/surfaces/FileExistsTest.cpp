// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfaces/FileExists.h"
#include "fakes/FakeSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

class AskingForAFile : public testing::Test {
  protected:
    CallLog Log;
    FakeFiles Stored{Log};
    FakeDialogs Questions{Log};
};

TEST_F(AskingForAFile, SaysNothingWhenTheFileCanBeRead) {
    Stored.Contents[QStringLiteral("/j/a.prg")] = "x";
    EXPECT_TRUE(FileExists(QStringLiteral("/j/a.prg"), Stored, Questions));
    EXPECT_THAT(Log.Calls(), ElementsAre("files.CanRead /j/a.prg"));
}

TEST_F(AskingForAFile, WarnsAndAnswersNoWhenTheFileCannotBeRead) {
    EXPECT_FALSE(FileExists(QStringLiteral("/j/año 1.prg"), Stored, Questions));
    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &warning = Questions.Messages.front();
    EXPECT_EQ(warning.Text, QString("El archivo /j/año 1.prg no existe."));
    EXPECT_EQ(warning.Caption, QString("Error"));
    EXPECT_EQ(warning.Icon, MessageIcon::Exclamation);
    EXPECT_EQ(warning.Buttons, MessageButtons::Ok);
}

TEST_F(AskingForAFile, WarnsAboutAnEmptyPathToo) {
    EXPECT_FALSE(FileExists(QString(), Stored, Questions));
    EXPECT_THAT(Log.Calls(),
                ElementsAre("files.CanRead ", "dialogs.ShowMessage El archivo  no existe."));
}

} // namespace
} // namespace Quillbox
