// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/ui/FindCount.h"
#include "search/ui/FindMarks.h"

namespace Quillbox {

/// The editor that an open find dialog works on: the stretch that it is limited to, the marks of
/// its matches and their number.
class FindTarget final : public QObject {
    Q_OBJECT
  public:
    explicit FindTarget(QObject *parent);
    ~FindTarget() override;

    /// Null leaves the editor that was followed, without marks.
    void Follow(QsciScintillaBase *editor);
    /// What is marked and counted.
    void Look(const FindRequest &request);

    /// Matches count in what is selected now; false when nothing is.
    bool LimitToSelection();
    void Unlimit();
    const std::optional<MovingRange> &Scope() const { return Scope_; }

    /// The editor shows another text, or is gone with its text.
    void TextReplaced();

    QString CountText() const { return Count_.Text(); }

  signals:
    void CountChanged();
    /// What it was limited to is gone.
    void ScopeLost();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void OnModified(int position, int type, int length);
    void OnUpdated(int changes);
    void LoseScope();
    void LookAgain();
    void ShowMarks();
    FindTask Task() const { return {Request_, false, Scope_}; }

    QPointer<QsciScintillaBase> Editor_;
    FindRequest Request_;
    std::optional<MovingRange> Scope_;
    bool TextHasChanged_ = false;
    FindMarks Marks_;
    FindCount Count_;
};

} // namespace Quillbox
