// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/ScintillaSearch.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace Quillbox {

/// Finds and replaces in the editor that had the keyboard last. Stays open beside the editors.
class FindDialog final : public QDialog {
    Q_OBJECT
  public:
    FindDialog(FindState &state, QWidget *parent);

    /// Comes to the front, ready for a new term; `term` is proposed when it is not empty.
    void Open(const QString &term);
    void ShowResult(const QString &text);

  private:
    void BuildFields();
    void BuildButtons();
    QPushButton *AddButton(const QString &name, const QString &caption,
                           void (FindDialog::*action)());
    void Find(FindDirection direction);
    void FindForward() { Find(FindDirection::Forward); }
    void FindBackward() { Find(FindDirection::Backward); }
    void Replace();
    void ReplaceAll();
    /// Takes over what the fields say; false when there is no editor or nothing to look for.
    bool ReadFields();
    void EnableButtons();

    FindState &State_;
    QLineEdit *Term_ = nullptr;
    QLineEdit *Replacement_ = nullptr;
    QCheckBox *MatchCase_ = nullptr;
    QCheckBox *WholeWord_ = nullptr;
    QLabel *Result_ = nullptr;
    std::vector<QPushButton *> Buttons_; ///< from top to bottom; the last one closes
};

/// Opens the dialog for `editor` with the selected word as the term.
void ShowFindDialog(FindState &state, QsciScintillaBase &editor);

/// Selects the next match of the last term; opens the dialog when there is no term or no match.
void FindNext(FindState &state, QsciScintillaBase &editor);

} // namespace Quillbox
