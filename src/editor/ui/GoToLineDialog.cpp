// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/GoToLineDialog.h"

#include "editor/LineRequest.h"
#include "editor/ui/ScintillaEditor.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Quillbox {

namespace {

constexpr int FieldCharacters = 40;

/// Lines above and below one that is reached without scrolling.
constexpr int LinesAround = 3;

/// A line that shows already stays where it is; any other comes to the middle.
void BringIntoView(const ScintillaText &text, LineIndex line) {
    using Sci = QsciScintillaBase;
    const auto top = static_cast<int>(text.Send(Sci::SCI_GETFIRSTVISIBLELINE));
    const auto shown = static_cast<int>(text.Send(Sci::SCI_LINESONSCREEN));
    if (line.Value < top + LinesAround || line.Value >= top + shown - LinesAround)
        text.Send(Sci::SCI_SETFIRSTVISIBLELINE, std::max(0, line.Value - shown / 2));
}

} // namespace

GoToLineDialog::GoToLineDialog(LineNumber current, int lineCount, QWidget *parent)
    : QDialog(parent)
    , LineCount_(lineCount)
    , Line_(new QLineEdit(QString::number(current.Value), this))
    , Hint_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmIrALinea"));
    setWindowTitle(QStringLiteral("Ir a la línea"));
    Line_->setObjectName(QStringLiteral("txtLinea"));
    Line_->setMinimumWidth(FieldCharacters * fontMetrics().averageCharWidth());
    Line_->selectAll();
    auto *label =
        new QLabel(QStringLiteral("&Línea de 1 a %1, o línea:columna:").arg(lineCount), this);
    label->setObjectName(QStringLiteral("lblLinea"));
    label->setBuddy(Line_);
    Hint_->setObjectName(QStringLiteral("lblAviso"));
    Hint_->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Ir"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, &GoToLineDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &GoToLineDialog::reject);
    connect(Line_, &QLineEdit::textEdited, Hint_, &QLabel::clear);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(Line_);
    layout->addWidget(Hint_);
    layout->addWidget(buttons);
}

void GoToLineDialog::accept() {
    const std::optional<TextPosition> target = ReadLineRequest(Line_->text(), LineCount_);
    if (!target)
        return ShowHint(QStringLiteral("Escribe un número de línea, por ejemplo 12 o 12:5."));
    Target_ = *target;
    QDialog::accept();
}

void GoToLineDialog::ShowHint(const QString &text) {
    Hint_->setText(text);
    Line_->setFocus();
    Line_->selectAll();
    QAccessibleEvent alert(Hint_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void GoToLine(ScintillaEditor &editor) {
    const LineNumber current = NumberOf(editor.GetSel().End.Line);
    GoToLineDialog dialog(current, editor.LineCount(), editor.window());
    if (dialog.exec() == QDialog::Accepted) {
        const TextPosition target = dialog.Target();
        BringIntoView(ScintillaText(editor), target.Line);
        editor.SetCaretPos(target);
    }
    editor.SetFocus();
}

} // namespace Quillbox
