// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace Quillbox {

struct Settings;

/// The frames of frmSettings in which check boxes stand.
enum class SettingsFrame { FontAndColors, Others, Help, Symbols };

/// When a setting is stored: before the tab size, before the symbols are scanned again, or after
/// that. What comes after still has its previous value in that scan.
enum class Storing { BeforeTabSize, BeforeScan, AfterScan };

/// A check box of frmSettings and the setting behind it.
struct SettingsCheckBox {
    const char *Name;
    bool Settings::*Field;
    const char *Caption; ///< Spanish, UTF-8
    const char *ToolTip; ///< Spanish, UTF-8
    SettingsFrame Frame;
    Storing Stored = Storing::BeforeScan;
};

/// In the order in which they are shown, frame by frame.
std::span<const SettingsCheckBox> SettingsCheckBoxes();

} // namespace Quillbox
