// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/Controls.h"

#include "widgets/AnsiLineEdit.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>

namespace Quillbox {

void NameControl(QWidget &control, const QString &name, const QString &toolTip) {
    control.setObjectName(name);
    control.setToolTip(toolTip);
    control.setAccessibleDescription(toolTip);
}

QPushButton *NewButton(const QString &name, const QString &caption, const QString &toolTip) {
    auto *button = NewControl<QPushButton>(name, caption, toolTip);
    button->setAutoDefault(false);
    return button;
}

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

void ShowFromStart(QLineEdit &box, const QString &text) {
    box.setText(text);
    box.setCursorPosition(0);
    if (box.isReadOnly())
        box.setToolTip(text.toHtmlEscaped());
}

void PutOverStatusBar(QWidget &client, QWidget &view, QStatusBar &statusBar) {
    auto *column = new QVBoxLayout(&client);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(&view, 1);
    column->addWidget(&statusBar);
    client.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void SelectCurrentEntry(QAbstractItemView &list) {
    QItemSelectionModel &selection = *list.selectionModel();
    if (!selection.hasSelection() && selection.currentIndex().isValid())
        selection.select(selection.currentIndex(), QItemSelectionModel::Select);
}

void ShowSelectionAsActive(QWidget &control) {
    QPalette colors = control.palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colors.setColor(QPalette::Inactive, role, colors.color(QPalette::Active, role));
    control.setPalette(colors);
}

} // namespace Quillbox
