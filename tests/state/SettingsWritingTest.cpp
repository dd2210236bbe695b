// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeSystem.h"
#include "fakes/GoldenCases.h"
#include "fakes/HoldsInOrder.h"
#include "platform/ProfileFiles.h"
#include "state/settings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

/// Every field differs from every other one of its kind where the kind allows it.
Settings Sample() {
    Settings settings;
    settings.FenixCPath = "/b/bcc";
    settings.HelpPath = "/b/index.html";
    settings.MainPath = "/b/";
    settings.ShowQuickHelp = true;
    settings.ColorSyntax = false;
    settings.StringColor = {1};
    settings.OperatorsColor = {0};
    settings.TextColor = {16777215};
    settings.BackgroundColor = {-1};
    settings.KeywordsColor = {5};
    settings.CommentsColor = {INT32_MIN};
    settings.NumbersColor = {INT32_MAX};
    settings.StringsStyle = 2;
    settings.CommentsStyle = 3;
    settings.OperatorsStyle = 0;
    settings.TextStyle = 255;
    settings.KeywordsStyle = 6;
    settings.NumbersStyle = 7;
    settings.Font = "Fira Code";
    settings.FontSize = 24;
    settings.TabSize = 8;
    settings.LineNumbers = true;
    settings.ShowFunctions = false;
    settings.ShowLabels = true;
    settings.ShowTypes = false;
    return settings;
}

class WritingSettings : public testing::Test {
  protected:
    CallLog Log;
    FakeProfile Profile{Log};
};

TEST_F(WritingSettings, WritesEveryKeyInTheOrderOfReading) {
    Settings settings = Sample();
    SettingsStore("/q/", settings, Profile).SaveSettings();

    std::vector<std::string> written;
    for (const auto &[key, value] : Profile.Written)
        written.push_back((key + '=' + value).toStdString());
    EXPECT_THAT(written, HoldsInOrder(std::vector<std::string>{"FenixCPath=/b/bcc",
                                                               "HelpPath=/b/index.html",
                                                               "MainPath=/b/",
                                                               "ShowQuickHelp=1",
                                                               "ColorSyntax=0",
                                                               "StringColor=1",
                                                               "OperatorsColor=0",
                                                               "TextColor=16777215",
                                                               "BackgroundColor=-1",
                                                               "KeywordsColor=5",
                                                               "CommentsColor=-2147483648",
                                                               "NumbersColor=2147483647",
                                                               "StringsStyle=2",
                                                               "CommentsStyle=3",
                                                               "OperatorsStyle=0",
                                                               "TextStyle=255",
                                                               "KeywordsStyle=6",
                                                               "NumbersStyle=7",
                                                               "Font=Fira Code",
                                                               "FontSize=24",
                                                               "TabSize=8",
                                                               "LineNumbers=1",
                                                               "ShowFunctions=0",
                                                               "ShowLabels=1",
                                                               "ShowTypes=0"}));
}

TEST_F(WritingSettings, WritesOnceIntoItsSectionOfTheProgramFoldersFile) {
    Settings settings;
    SettingsStore("/q/", settings, Profile).SaveSettings();

    EXPECT_THAT(Log.Calls(), ElementsAre("profile.WriteStrings Quillbox /q/Quillbox.ini"));
}

/// With the real file: what the rules write is what they read at the next start.
class SettingsFile : public testing::Test {
  protected:
    QString AppDir() const { return Folder.path() + '/'; }
    QString FileName() const { return AppDir() + "Quillbox.ini"; }
    QByteArray Content() const {
        QFile file(FileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void SetContent(const QByteArray &content) const {
        QFile file(FileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    Settings Load() {
        Settings settings;
        SettingsStore(AppDir(), settings, Profile).LoadSettings();
        return settings;
    }
    void Save(Settings settings) { SettingsStore(AppDir(), settings, Profile).SaveSettings(); }

    QTemporaryDir Folder;
    ProfileFiles Profile;
};

TEST_F(SettingsFile, HoldsAllKeysInOrderAfterTheFirstExit) {
    Save(Load());

    EXPECT_EQ(Content().replace("\r\n", "\n").replace("\n", "\r\n").toStdString(),
              ReadBytes(GoldenFolder("settings") / "first_exit.ini"));
}

TEST_F(SettingsFile, ComesBackAsItWasWritten) {
    Save(Sample());

    EXPECT_TRUE(Load() == Sample());
}

TEST_F(SettingsFile, IsNotCreatedByReading) {
    Load();

    EXPECT_FALSE(QFile::exists(FileName()));
}

TEST_F(SettingsFile, KeepsAPathOf150CharactersOnlyToItsCut) {
    SetContent("[Quillbox]\r\nFenixCPath=" + QByteArray(150, 'x') + "\r\n");

    Save(Load());

    EXPECT_TRUE(Content().startsWith("[Quillbox]\r\nFenixCPath=" + QByteArray(99, 'x') + "\r\n"));
}

TEST_F(SettingsFile, ReadsAPresentKeyWithoutValueAsNothing) {
    SetContent("[Quillbox]\r\nShowTypes=\r\nFontSize=\r\nNumbersColor=\r\nMainPath=\r\n");

    const Settings settings = Load();

    EXPECT_FALSE(settings.ShowTypes);
    EXPECT_EQ(settings.FontSize, 0);
    EXPECT_EQ(settings.NumbersColor, Color{0});
    EXPECT_EQ(settings.MainPath, QString());
}

} // namespace
} // namespace Quillbox
