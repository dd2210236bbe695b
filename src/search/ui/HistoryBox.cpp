// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ui/HistoryBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace Quillbox {

namespace {

constexpr int ShownCharacters = 28;

} // namespace

HistoryBox::HistoryBox(QWidget *parent)
    : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    // However long the texts in the list are, the box keeps its width.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(ShownCharacters);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HistoryBox::SetHistory(const QStringList &history) {
    const QSignalBlocker noSignals(this);
    const QSignalBlocker noSignalsOfText(lineEdit());
    const QString text = currentText();
    const int cursor = lineEdit()->cursorPosition();
    clear();
    addItems(history);
    setEditText(text);
    lineEdit()->setCursorPosition(cursor);
}

void HistoryBox::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier && count() > 0)
        showPopup();
    else
        QComboBox::keyPressEvent(event);
}

} // namespace Quillbox
