// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/ui/FindForm.h"
#include "search/ui/FindTarget.h"
#include "search/ui/ScintillaSearch.h"

#include <QDialog>

namespace Quillbox {

/// Finds and replaces in the editor that had the keyboard last. Stays open beside the editors and
/// marks the matches meanwhile.
class FindDialog final : public QDialog {
    Q_OBJECT
  public:
    FindDialog(FindState &state, QWidget *parent);

    /// Comes to the front, ready for a new term: the selected text of one line is proposed. Several
    /// selected lines are what it is limited to.
    void Open();
    /// Finds what the state says, whatever is in the fields now.
    void Repeat(FindDirection direction);

    /// The state's editor is another one.
    void FollowEditor();
    void TextReplaced() { Target_.TextReplaced(); }

  protected:
    void hideEvent(QHideEvent *event) override;

  private:
    void Connect();
    void ConnectKey(QKeyCombination key, QPushButton *button);
    void Find(FindDirection direction);
    void Replace();
    void ReplaceAll();

    bool ShowsDocument() const { return State_.Editor && State_.Editor->isVisible(); }
    FindRequest RequestOfFields() const;
    FindTask Task() const { return {State_.Request, State_.Wrap, Target_.Scope()}; }
    /// Takes over what the fields say; false when there is no editor or nothing to look for.
    bool ReadFields();
    void ShowState(const QString &term);
    void FieldsChanged();
    void LimitClicked(bool limited);
    void ShowLimit();
    void ShowResult(const QString &text);
    /// What was found decides what "replace" does next.
    void MatchFound(const FindOutcome &outcome);

    FindState &State_;
    FindForm Form_;
    FindTarget Target_;
    std::optional<std::int64_t> EmptyMatch_; ///< where a match without text was found last
};

} // namespace Quillbox
