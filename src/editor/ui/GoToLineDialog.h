// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/TextPosition.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace Quillbox {

class ScintillaEditor;

/// Asks for a line, or a line and a column, of a text.
class GoToLineDialog final : public QDialog {
    Q_OBJECT
  public:
    GoToLineDialog(LineNumber current, int lineCount, QWidget *parent);

    /// What was asked for, once the dialog is accepted.
    TextPosition Target() const { return Target_; }

    void accept() override;

  private:
    void ShowHint(const QString &text);

    int LineCount_;
    TextPosition Target_;
    QLineEdit *Line_;
    QLabel *Hint_;
};

/// Asks for a line of the editor's text and puts the caret there, comfortably in view.
void GoToLine(ScintillaEditor &editor);

} // namespace Quillbox
