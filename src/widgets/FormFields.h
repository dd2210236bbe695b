// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QGridLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace Quillbox {

/// Adds a row with a caption and a text box for one line of an ANSI file. The caption's mnemonic
/// leads to the box, which is `columns` wide.
QLineEdit *AddTextBox(QGridLayout &grid, const QString &name, const QString &caption,
                      int columns = 1);

/// A button that Return presses only while it has the keyboard or is the default one.
QPushButton *NewButton(const QString &name, const QString &caption, QWidget *parent);

/// Shows a text of any length from its start. A box that nobody can type into has the whole of it
/// as its tooltip.
void ShowFromStart(QLineEdit &box, const QString &text);

} // namespace Quillbox
