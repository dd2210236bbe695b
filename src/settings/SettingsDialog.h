// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/ItemAttributes.h"
#include "settings/SettingsCheckBox.h"
#include "surfaces/Dialogs.h"

namespace Quillbox {

class CompanionPrograms;
class SettingsEffect;
class SettingsWindow;

/// What frmSettings decides, from its opening to its end. The settings change in memory only, when
/// they are accepted or applied; the file is written when the program ends.
class SettingsDialog {
  public:
    SettingsDialog(SettingsWindow &window, Settings &settings, Dialogs &dialogs,
                   SettingsEffect &effect, CompanionPrograms &companions);

    void Form_Load();
    void lstItems_Click();
    /// `style`: the selected entry, from 0.
    void lstStyles_Click(int style);
    void cmdCambiarColor_Click();
    void cmdCambiarFuente_Click();
    void cmdCompilerBrowse_Click();
    void cmdHelpBrowse_Click();
    /// Whether the box takes a typed character: "0" to "9" and ":". Backspace is not among them.
    bool txtTabSize_KeyPress(int characterCode) const;
    /// Holds the text to 1 to 255 and makes the spinner follow.
    void txtTabSize_Change();
    void spnTabSize_Change(int value);
    void spnTabSize_SpinUp();
    void spnTabSize_SpinDown();
    /// Stores and closes. A compiler path of fewer than 7 characters is run-time error 5: both
    /// paths are stored then, nothing else is, and the dialog stays.
    void cmdAceptar_Click();
    /// Stores, shows the result in the current document and comes back. Fails as cmdAceptar_Click.
    void cmdAplicar_Click();
    void cmdCancelar_Click();
    void cmdAyuda_Click();

  private:
    void ShowSettings();
    void ShowCheckBoxes(std::initializer_list<SettingsFrame> frames);
    void StoreSettings();
    void StoreCheckBoxes(Storing when);
    void ShowItemColor();
    void ShowItemStyle();
    void ShowFontSample();
    std::optional<QString> Browse(const QString &title, const QString &stored,
                                  const QString &filter);
    ItemAttribute &SelectedAttribute();
    double TabSizeNumber() const;

    SettingsWindow &Window_;
    Settings &Settings_;
    Dialogs &Dialogs_;
    SettingsEffect &Effect_;
    CompanionPrograms &Companions_;
    ItemAttributes ItemAttributes_;
    FontChoice Font_; ///< what the font chooser offers and the sample shows
};

} // namespace Quillbox
