// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/ErrorNumber.h"
#include "fakes/FakeSystem.h"
#include "fakes/GoldenCases.h"
#include "state/settings.h"

#include <set>

namespace Quillbox {
namespace {

/// The keys whose fields are of this type.
template <typename Type>
std::vector<const char *> KeysOf() {
    std::vector<const char *> keys;
    for (const SettingsEntry &entry : SettingsEntries())
        if (std::holds_alternative<Type Settings::*>(entry.Field))
            keys.push_back(entry.Key);
    return keys;
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

TEST_F(ReadingSettings, TakesTheDefaultOfEveryMissingKey) {
    Settings settings = Read({});
    SettingsStore("/q/", settings, Profile).SaveSettings();

    QString written = "[Quillbox]\r\n";
    for (const auto &[key, value] : Profile.Written)
        written += key + '=' + value + "\r\n";
    EXPECT_EQ(written.toStdString(), ReadBytes(GoldenFolder("settings") / "first_exit.ini"));
}

/// One place of the buffer stays empty.
int CapacityOf(const SettingsEntry &entry) {
    if (std::holds_alternative<QString Settings::*>(entry.Field))
        return 100;
    return std::holds_alternative<bool Settings::*>(entry.Field) ? 2 : 50;
}

TEST_F(ReadingSettings, AsksForEveryKeyOnceInOrderWithItsCapacity) {
    std::vector<std::string> expected;
    for (const SettingsEntry &entry : SettingsEntries())
        expected.push_back("profile.ReadString Quillbox " + std::string(entry.Key) + ' ' +
                           std::to_string(CapacityOf(entry)) + " /q/Quillbox.ini");

    Read({});

    EXPECT_EQ(Log.Calls(), expected);
    EXPECT_EQ(std::set(expected.begin(), expected.end()).size(), expected.size());
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
        Settings expected = Read({});
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
    for (const char *key : KeysOf<bool>())
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
    for (const char *key : KeysOf<Color>())
        for (const char *text : {"2147483648", "-2147483649", "99999999999999999999"})
            EXPECT_EQ(ErrorOf(key, text), 6) << key << '=' << text;
}

TEST_F(ReadingSettings, EndsInRunTimeErrorSixAtAByteOutsideItsRange) {
    for (const char *key : KeysOf<std::uint8_t>())
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
