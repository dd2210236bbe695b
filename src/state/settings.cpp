// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/settings.h"

#include "base/Numbers.h"

namespace Quillbox {
namespace {

const QString Section = QStringLiteral("Quillbox");
const QString FileName = QStringLiteral("Quillbox.ini");

constexpr int PathCapacity = 100;
constexpr int NumberCapacity = 50;
/// Room for one character: "10" is read as "1" and "-1" as "-", which is no number and so false.
constexpr int BooleanCapacity = 2;

constexpr SettingsEntry Entries[] = {
    {"FenixCPath", "C:\\Fenix\\FXC.exe", PathCapacity, &Settings::FenixCPath},
    {"HelpPath", "C:\\Fenix\\docs\\index.xml", PathCapacity, &Settings::HelpPath},
    {"MainPath", "C:\\Fenix\\", PathCapacity, &Settings::MainPath},
    {"ShowQuickHelp", "1", BooleanCapacity, &Settings::ShowQuickHelp},
    {"ColorSyntax", "1", BooleanCapacity, &Settings::ColorSyntax},
    {"StringColor", "8388736", NumberCapacity, &Settings::StringColor},
    {"OperatorsColor", "0", NumberCapacity, &Settings::OperatorsColor},
    {"TextColor", "0", NumberCapacity, &Settings::TextColor},
    {"BackgroundColor", "16777215", NumberCapacity, &Settings::BackgroundColor},
    {"KeywordsColor", "128", NumberCapacity, &Settings::KeywordsColor},
    {"CommentsColor", "32768", NumberCapacity, &Settings::CommentsColor},
    {"NumbersColor", "16711680", NumberCapacity, &Settings::NumbersColor},
    {"StringsStyle", "0", NumberCapacity, &Settings::StringsStyle},
    {"CommentsStyle", "0", NumberCapacity, &Settings::CommentsStyle},
    {"OperatorsStyle", "1", NumberCapacity, &Settings::OperatorsStyle},
    {"TextStyle", "0", NumberCapacity, &Settings::TextStyle},
    {"KeywordsStyle", "1", NumberCapacity, &Settings::KeywordsStyle},
    {"NumbersStyle", "1", NumberCapacity, &Settings::NumbersStyle},
    {"Font", "Courier", PathCapacity, &Settings::Font},
    {"FontSize", "10", NumberCapacity, &Settings::FontSize},
    {"TabSize", "3", NumberCapacity, &Settings::TabSize},
    {"LineNumbers", "1", BooleanCapacity, &Settings::LineNumbers},
    {"ShowFunctions", "1", BooleanCapacity, &Settings::ShowFunctions},
    {"ShowLabels", "1", BooleanCapacity, &Settings::ShowLabels},
    {"ShowTypes", "1", BooleanCapacity, &Settings::ShowTypes},
};

void SetValue(QString &field, const QString &text) { field = text; }
void SetValue(bool &field, const QString &text) { field = LeadingNumber(text) != 0; }
void SetValue(Color &field, const QString &text) { field.Value = ToLong(LeadingNumber(text)); }
void SetValue(std::uint8_t &field, const QString &text) { field = ToByte(LeadingNumber(text)); }

QString TextOf(const QString &field) { return field; }
QString TextOf(bool field) { return field ? QStringLiteral("1") : QStringLiteral("0"); }
QString TextOf(Color field) { return QString::number(field.Value); }
QString TextOf(std::uint8_t field) { return QString::number(field); }

} // namespace

std::span<const SettingsEntry> SettingsEntries() { return Entries; }

SettingsStore::SettingsStore(const QString &appDir, Settings &settings, PrivateProfile &profile)
    : File_(appDir + FileName)
    , Settings_(settings)
    , Profile_(profile) {}

void SettingsStore::LoadSettings() {
    for (const SettingsEntry &entry : Entries) {
        const QString text =
            Profile_.ReadString(Section, QString::fromLatin1(entry.Key),
                                QString::fromLatin1(entry.DefaultText), entry.Capacity, File_);
        std::visit([&](auto field) { SetValue(Settings_.*field, text); }, entry.Field);
    }
}

void SettingsStore::SaveSettings() {
    std::vector<PrivateProfile::KeyValue> values;
    for (const SettingsEntry &entry : Entries)
        std::visit(
            [&](auto field) {
                values.emplace_back(QString::fromLatin1(entry.Key), TextOf(Settings_.*field));
            },
            entry.Field);
    Profile_.WriteStrings(Section, values, File_);
}

} // namespace Quillbox
