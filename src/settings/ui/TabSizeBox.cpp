// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/TabSizeBox.h"

#include "widgets/Controls.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace Quillbox {
namespace {

constexpr const char *ToolTip = "Tamaño del tabulador (por defecto 3)";

/// Keys that have a character code but type nothing into a text box: those of the dialog, Delete,
/// and those that select or copy.
bool TypesNothing(const QKeyEvent &key) {
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return true;
    default:
        return key.text().isEmpty() || key.matches(QKeySequence::SelectAll) ||
               key.matches(QKeySequence::Copy);
    }
}

} // namespace

TabSizeBox::TabSizeBox()
    : txtTabSize(new QLineEdit(this)) {
    NameControl(*this, "spnTabSize", ToolTip);
    NameControl(*txtTabSize, "txtTabSize", ToolTip);
    setRange(1, 255);
    lineEdit()->hide(); // txtTabSize stands in its place
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(txtTabSize);
    txtTabSize->setFrame(false);
    txtTabSize->setAttribute(Qt::WA_InputMethodEnabled, false); // every character is a key press
    txtTabSize->installEventFilter(this);
}

bool TabSizeBox::eventFilter(QObject *watched, QEvent *event) {
    if (watched != txtTabSize)
        return QSpinBox::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return TakesOver(*static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return false;
}

/// The arrow keys step as the arrows do. What is taken over never reaches the text box.
bool TabSizeBox::TakesOver(const QKeyEvent &key) {
    if (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down) {
        const bool up = key.key() == Qt::Key_Up;
        if (stepEnabled().testFlag(up ? StepUpEnabled : StepDownEnabled))
            stepBy(up ? 1 : -1);
        return true;
    }
    return !TypesNothing(key) && !CharacterTyped(key.text().front().unicode());
}

void TabSizeBox::stepBy(int steps) {
    QSpinBox::stepBy(steps);
    if (steps > 0)
        emit SpinUp();
    else
        emit SpinDown();
}

/// The frame shows the keyboard of the text box within it.
void TabSizeBox::initStyleOption(QStyleOptionSpinBox *option) const {
    QSpinBox::initStyleOption(option);
    option->state.setFlag(QStyle::State_HasFocus, txtTabSize->hasFocus());
}

void TabSizeBox::resizeEvent(QResizeEvent *event) {
    QSpinBox::resizeEvent(event);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    txtTabSize->setGeometry(
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, this));
}

} // namespace Quillbox
