// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <QString>

namespace Quillbox {

struct FontChoice;

/// The text boxes txtCompilerPath, txtHelpPath and txtTabSize.
enum class SettingsText { CompilerPath, HelpPath, TabSize };

/// The settings dialog as its rules see it. What they set raises the same event as if the person
/// had done it, before the call returns; a value that is there already raises none.
class SettingsWindow {
  public:
    virtual ~SettingsWindow() = default;

    virtual QString Text(SettingsText box) const = 0;
    virtual void SetText(SettingsText box, const QString &text) = 0;
    /// Check boxes are known by their control names.
    virtual bool IsChecked(const QString &box) const = 0;
    virtual void SetChecked(const QString &box, bool checked) = 0;
    /// The value of spnTabSize, held to 1 to 255.
    virtual void SetTabSpinner(int value) = 0;
    /// Gives the keyboard to txtTabSize.
    virtual void FocusTabSize() = 0;

    /// The selected row of lstItems, from 0.
    virtual int SelectedItem() const = 0;
    virtual void SelectItem(int row) = 0;
    /// Selects an entry of lstStyles, from 0; an entry that is not there leaves none selected.
    virtual void SelectStyle(int style) = 0;
    virtual void EnableStyles(bool enabled) = 0;
    /// The colour of ptbMuestra.
    virtual void SetSample(Color color) = 0;
    /// The text of lblFont and the font in which it is written.
    virtual void SetFontSample(const QString &caption, const FontChoice &font) = 0;

    /// Takes the dialog off the screen with all that it holds.
    virtual void Hide() = 0;
    /// Shows a hidden dialog again, modally, as soon as the event under way has been handled.
    virtual void ShowAgain() = 0;
    /// Closes the dialog for good.
    virtual void Unload() = 0;
};

} // namespace Quillbox
