// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/ErrorNumber.h"
#include "fakes/FakeSystem.h"
#include "state/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

constexpr const char *ColorKeys[] = {"StringColor",     "OperatorsColor", "TextColor",
                                     "BackgroundColor", "KeywordsColor",  "CommentsColor",
                                     "NumbersColor"};
constexpr const char *ByteKeys[] = {"StringsStyle",  "CommentsStyle", "OperatorsStyle", "TextStyle",
                                    "KeywordsStyle", "NumbersStyle",  "FontSize",       "TabSize"};
constexpr const char *BooleanKeys[] = {"ShowQuickHelp", "ColorSyntax", "LineNumbers",
                                       "ShowFunctions", "ShowLabels",  "ShowTypes"};

Settings Defaults() {
    Settings settings;
    settings.FenixCPath = "C:\\Fenix\\FXC.exe";
    settings.HelpPath = "C:\\Fenix\\docs\\index.xml";
    settings.MainPath = "C:\\Fenix\\";
    settings.ShowQuickHelp = true;
    settings.ColorSyntax = true;
    settings.StringColor = RgbColor(128, 0, 128);
    settings.OperatorsColor = RgbColor(0, 0, 0);
    settings.TextColor = RgbColor(0, 0, 0);
    settings.BackgroundColor = RgbColor(255, 255, 255);
    settings.KeywordsColor = RgbColor(128, 0, 0);
    settings.CommentsColor = RgbColor(0, 128, 0);
    settings.NumbersColor = RgbColor(0, 0, 255);
    settings.StringsStyle = 0;
    settings.CommentsStyle = 0;
    settings.OperatorsStyle = 1;
    settings.TextStyle = 0;
    settings.KeywordsStyle = 1;
    settings.NumbersStyle = 1;
    settings.Font = "Courier";
    settings.FontSize = 10;
    settings.TabSize = 3;
    settings.LineNumbers = true;
    settings.ShowFunctions = true;
    settings.ShowLabels = true;
    settings.ShowTypes = true;
    return settings;
}

class ReadingSettings : public testing::Test {
  protected:
    /// What a settings file with only these keys is read as.
    Settings Read(const std::map<QString, QString> &values) {
        Profile.Values = values;
        Settings settings;
        SettingsStore("/q/", settings, Profile).LoadSettings();
        return settings;
    }
    int ErrorOf(const char *key, const char *text) {
        return ErrorNumberOf([&] { Read({{key, text}}); });
    }

    CallLog Log;
    FakeProfile Profile{Log};
};

TEST_F(ReadingSettings, TakesTheDefaultOfEveryMissingKey) { EXPECT_TRUE(Read({}) == Defaults()); }

TEST_F(ReadingSettings, AsksForEveryKeyInOrderWithItsCapacity) {
    Read({});

    EXPECT_THAT(Log.Calls(),
                ElementsAre("profile.ReadString Quillbox FenixCPath 100 /q/Quillbox.ini",
                            "profile.ReadString Quillbox HelpPath 100 /q/Quillbox.ini",
                            "profile.ReadString Quillbox MainPath 100 /q/Quillbox.ini",
                            "profile.ReadString Quillbox ShowQuickHelp 2 /q/Quillbox.ini",
                            "profile.ReadString Quillbox ColorSyntax 2 /q/Quillbox.ini",
                            "profile.ReadString Quillbox StringColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox OperatorsColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox TextColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox BackgroundColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox KeywordsColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox CommentsColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox NumbersColor 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox StringsStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox CommentsStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox OperatorsStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox TextStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox KeywordsStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox NumbersStyle 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox Font 100 /q/Quillbox.ini",
                            "profile.ReadString Quillbox FontSize 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox TabSize 50 /q/Quillbox.ini",
                            "profile.ReadString Quillbox LineNumbers 2 /q/Quillbox.ini",
                            "profile.ReadString Quillbox ShowFunctions 2 /q/Quillbox.ini",
                            "profile.ReadString Quillbox ShowLabels 2 /q/Quillbox.ini",
                            "profile.ReadString Quillbox ShowTypes 2 /q/Quillbox.ini"));
}

TEST_F(ReadingSettings, PutsEachKeyIntoItsOwnField) {
    struct Case {
        const char *Key;
        const char *Text;
        void (*Change)(Settings &expected);
    };
    const Case cases[] = {
        {"FenixCPath", "/b/bcc", [](Settings &s) { s.FenixCPath = "/b/bcc"; }},
        {"HelpPath", "/b/index.html", [](Settings &s) { s.HelpPath = "/b/index.html"; }},
        {"MainPath", "/b/", [](Settings &s) { s.MainPath = "/b/"; }},
        {"ShowQuickHelp", "0", [](Settings &s) { s.ShowQuickHelp = false; }},
        {"ColorSyntax", "0", [](Settings &s) { s.ColorSyntax = false; }},
        {"StringColor", "1", [](Settings &s) { s.StringColor = {1}; }},
        {"OperatorsColor", "2", [](Settings &s) { s.OperatorsColor = {2}; }},
        {"TextColor", "3", [](Settings &s) { s.TextColor = {3}; }},
        {"BackgroundColor", "4", [](Settings &s) { s.BackgroundColor = {4}; }},
        {"KeywordsColor", "5", [](Settings &s) { s.KeywordsColor = {5}; }},
        {"CommentsColor", "6", [](Settings &s) { s.CommentsColor = {6}; }},
        {"NumbersColor", "7", [](Settings &s) { s.NumbersColor = {7}; }},
        {"StringsStyle", "2", [](Settings &s) { s.StringsStyle = 2; }},
        {"CommentsStyle", "3", [](Settings &s) { s.CommentsStyle = 3; }},
        {"OperatorsStyle", "4", [](Settings &s) { s.OperatorsStyle = 4; }},
        {"TextStyle", "5", [](Settings &s) { s.TextStyle = 5; }},
        {"KeywordsStyle", "6", [](Settings &s) { s.KeywordsStyle = 6; }},
        {"NumbersStyle", "7", [](Settings &s) { s.NumbersStyle = 7; }},
        {"Font", "Fira Code", [](Settings &s) { s.Font = "Fira Code"; }},
        {"FontSize", "24", [](Settings &s) { s.FontSize = 24; }},
        {"TabSize", "8", [](Settings &s) { s.TabSize = 8; }},
        {"LineNumbers", "0", [](Settings &s) { s.LineNumbers = false; }},
        {"ShowFunctions", "0", [](Settings &s) { s.ShowFunctions = false; }},
        {"ShowLabels", "0", [](Settings &s) { s.ShowLabels = false; }},
        {"ShowTypes", "0", [](Settings &s) { s.ShowTypes = false; }},
    };
    for (const Case &one : cases) {
        Settings expected = Defaults();
        one.Change(expected);
        EXPECT_TRUE(Read({{one.Key, one.Text}}) == expected) << one.Key;
    }
}

/// The buffer of a boolean holds one character, so "-1" is read as "-".
TEST_F(ReadingSettings, TakesTheFirstCharacterOfABoolean) {
    struct Case {
        const char *Text;
        bool Value;
    };
    const Case cases[] = {
        {"1", true},     {"0", false},    {"2", true},   {"9", true},    {"10", true},
        {"01", false},   {"-1", false},   {"+1", false}, {"", false},    {" ", false},
        {"true", false}, {"&HFF", false}, {".5", false}, {"0.9", false},
    };
    for (const char *key : BooleanKeys)
        for (const Case &one : cases) {
            const SettingsEntry *entry = nullptr;
            for (const SettingsEntry &candidate : SettingsEntries())
                if (QString(candidate.Key) == key)
                    entry = &candidate;
            const Settings settings = Read({{key, one.Text}});
            EXPECT_EQ(settings.*std::get<bool Settings::*>(entry->Field), one.Value)
                << key << '=' << one.Text;
        }
}

TEST_F(ReadingSettings, ReadsColoursAsNumbers) {
    struct Case {
        const char *Text;
        std::int32_t Value;
    };
    const Case cases[] = {
        {"&HFF", 255},
        {"&H00FF00", 65280},
        {"&O377", 255},
        {"255", 255},
        {" 255", 255},
        {"", 0},
        {"rojo", 0},
        {"-1", -1},
        {"-2147483648", INT32_MIN},
        {"2147483647", INT32_MAX},
        {"2.5", 2},
        {"3.5", 4},
        {"255;rojo", 255},
    };
    for (const Case &one : cases)
        EXPECT_EQ(Read({{"BackgroundColor", one.Text}}).BackgroundColor.Value, one.Value)
            << one.Text;
}

TEST_F(ReadingSettings, ReadsBytesAsNumbers) {
    struct Case {
        const char *Text;
        int Value;
    };
    const Case cases[] = {
        {"10.5", 10}, {"11.5", 12}, {"255", 255}, {"0", 0},      {"", 0},
        {"&H10", 16}, {"-0.5", 0},  {"diez", 0},  {"12 pt", 12},
    };
    for (const Case &one : cases)
        EXPECT_EQ(Read({{"FontSize", one.Text}}).FontSize, one.Value) << one.Text;
}

TEST_F(ReadingSettings, EndsInRunTimeErrorSixAtAColourOutsideThirtyTwoBits) {
    for (const char *key : ColorKeys)
        for (const char *text : {"2147483648", "-2147483649", "99999999999999999999"})
            EXPECT_EQ(ErrorOf(key, text), 6) << key << '=' << text;
}

TEST_F(ReadingSettings, EndsInRunTimeErrorSixAtAByteOutsideItsRange) {
    for (const char *key : ByteKeys)
        for (const char *text : {"256", "300", "-1", "255.5"})
            EXPECT_EQ(ErrorOf(key, text), 6) << key << '=' << text;
}

TEST_F(ReadingSettings, ReadsNothingBehindANumberThatItsFieldCannotHold) {
    ErrorOf("FontSize", "300");

    EXPECT_EQ(Log.Calls().back(), "profile.ReadString Quillbox FontSize 50 /q/Quillbox.ini");
}

TEST_F(ReadingSettings, CutsPathsAndTheFontAtNinetyNineCharacters) {
    const QString text = QString(98, 'a') + 'b' + QString(51, 'c');
    const Settings settings =
        Read({{"FenixCPath", text}, {"HelpPath", text}, {"MainPath", text}, {"Font", text}});

    for (const QString &field :
         {settings.FenixCPath, settings.HelpPath, settings.MainPath, settings.Font})
        EXPECT_EQ(field, QString(98, 'a') + 'b');
}

TEST_F(ReadingSettings, CutsNumbersAtFortyNineCharacters) {
    EXPECT_EQ(Read({{"TabSize", QString(48, ' ') + "12"}}).TabSize, 1);
}

TEST_F(ReadingSettings, KeepsAnEmptyText) { EXPECT_EQ(Read({{"Font", ""}}).Font, QString()); }

TEST_F(ReadingSettings, LooksInTheProgramFolderEvenWithADoubledSeparator) {
    Settings settings;
    SettingsStore("C:\\\\", settings, Profile).LoadSettings();

    EXPECT_EQ(Log.Calls().front(), "profile.ReadString Quillbox FenixCPath 100 C:\\\\Quillbox.ini");
}

} // namespace
} // namespace Quillbox
