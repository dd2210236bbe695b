// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/FormFields.h"

#include "widgets/AnsiLineEdit.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {

QLineEdit *AddTextBox(QGridLayout &grid, const QString &name, const QString &caption, int columns) {
    auto *box = new QLineEdit(grid.parentWidget());
    box->setObjectName(name);
    KeepOneAnsiLine(*box);
    auto *label = new QLabel(caption, grid.parentWidget());
    label->setBuddy(box);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(box, row, 1, 1, columns);
    return box;
}

QPushButton *NewButton(const QString &name, const QString &caption, QWidget *parent) {
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void ShowFromStart(QLineEdit &box, const QString &text) {
    box.setText(text);
    box.setCursorPosition(0);
    if (box.isReadOnly())
        box.setToolTip(text.toHtmlEscaped());
}

} // namespace Quillbox
