// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <QString>

#include <optional>

namespace Quillbox {

class Dialogs;
class EditorControl;

/// The decimal value of two hexadecimal digits, A to F in upper case; any other character counts
/// as 0.
QString HexToDec(const QString &digits);

/// "255,128,0": red, green and blue as the drawing commands of the language take them. A colour
/// whose number 0xBBGGRR has an odd count of hexadecimal digits comes out wrong: its digits are
/// filled up with two zeros at a time and then read one place off.
QString ColorText(Color color);

/// The colour that a text such as "255,128,0" names.
std::optional<Color> FindColor(const QString &text);

/// Inserts a colour that the person chooses.
class ColorInsertion {
  public:
    explicit ColorInsertion(Dialogs &dialogs);

    /// Replaces the selection by the text of the chosen colour; nothing happens when the person
    /// cancels. The chooser starts at the colour that is selected as text, else at the last one
    /// chosen.
    void mnuEdicion_InsertarRGB_Click(EditorControl &editor);

  private:
    Dialogs &Dialogs_;
    Color Last_ = RgbColor(255, 255, 255);
};

} // namespace Quillbox
