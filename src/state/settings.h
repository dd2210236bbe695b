// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"
#include "surfaces/PrivateProfile.h"

#include <QString>

#include <cstdint>
#include <span>
#include <variant>

namespace Quillbox {

/// All user preferences, named after their keys in the settings file. Read once at start-up,
/// changed in memory by the settings dialog, written once at a normal exit.
struct Settings {
    QString FenixCPath; ///< the compiler's executable
    QString HelpPath;   ///< the language help's first page
    QString MainPath;   ///< folder of the language tools, with its separator at the end
    bool ShowQuickHelp = false;
    bool ColorSyntax = false;
    Color KeywordsColor;
    Color NumbersColor;
    Color StringColor;
    Color OperatorsColor;
    Color CommentsColor;
    Color TextColor;
    Color BackgroundColor;
    std::uint8_t KeywordsStyle = 0; ///< styles are numbered as FontStyle
    std::uint8_t NumbersStyle = 0;
    std::uint8_t StringsStyle = 0;
    std::uint8_t OperatorsStyle = 0;
    std::uint8_t CommentsStyle = 0;
    std::uint8_t TextStyle = 0;
    QString Font;
    std::uint8_t FontSize = 0; ///< in points
    std::uint8_t TabSize = 0;  ///< in columns
    bool LineNumbers = false;
    bool ShowFunctions = false;
    bool ShowLabels = false;
    bool ShowTypes = false;

    bool operator==(const Settings &) const = default;
};

/// One key of the settings file. The field's type decides how its text is read and written.
struct SettingsEntry {
    const char *Key;
    const char *DefaultText;
    int Capacity; ///< of the reading buffer: values are cut to one character less
    std::variant<QString Settings::*, bool Settings::*, Color Settings::*, std::uint8_t Settings::*>
        Field;
};

/// The 25 keys in the order in which they are read and written.
std::span<const SettingsEntry> SettingsEntries();

/// Reads and writes the settings file "Quillbox.ini" of the program folder.
class SettingsStore {
  public:
    SettingsStore(const QString &appDir, Settings &settings, PrivateProfile &profile);

    /// Fills every field. A colour outside 32 bits or a byte outside 0 to 255 is run-time error 6.
    void LoadSettings();
    /// Writes every field. A failure is not reported: the program is closing.
    void SaveSettings();

  private:
    QString File_;
    Settings &Settings_;
    PrivateProfile &Profile_;
};

} // namespace Quillbox
