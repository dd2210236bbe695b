// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QAbstractItemView;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QStatusBar;
class QWidget;

namespace Quillbox {

/// Gives a control its name and its tooltip, which is also what assistive tools read out.
void NameControl(QWidget &control, const QString &name, const QString &toolTip = {});

/// A button, check box or label. It belongs to the window in whose layout it is put.
template <typename Control>
Control *NewControl(const QString &name, const QString &caption, const QString &toolTip = {}) {
    auto *control = new Control;
    control->setText(caption);
    NameControl(*control, name, toolTip);
    return control;
}

/// A button that Return presses only while it has the keyboard or is the default one.
QPushButton *NewButton(const QString &name, const QString &caption, const QString &toolTip = {});

/// Adds a row with a caption and a text box for one line of an ANSI file. The caption's mnemonic
/// leads to the box, which is `columns` wide.
QLineEdit *AddTextBox(QGridLayout &grid, const QString &name, const QString &caption,
                      int columns = 1);

/// Shows a text of any length from its start. A box that nobody can type into has the whole of it
/// as its tooltip.
void ShowFromStart(QLineEdit &box, const QString &text);

/// Fills `client` with `view` and, below it, `statusBar`. Neither keeps the client from becoming
/// smaller.
void PutOverStatusBar(QWidget &client, QWidget &view, QStatusBar &statusBar);

/// Selects the entry that is current when none is selected. The keyboard makes an entry current
/// without selecting it, and the next key would act on an entry that nothing shows.
void SelectCurrentEntry(QAbstractItemView &list);

/// Shows what is selected in the colours of the keyboard's control while another one has it.
void ShowSelectionAsActive(QWidget &control);

} // namespace Quillbox
