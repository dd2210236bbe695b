// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Completion.h"

#include <QFrame>

class QLabel;
class QListView;

namespace Quillbox {

class CompletionModel;

/// A list of words with the help line of the current one below. It never takes the keyboard: its
/// owner moves through it with the keys that the editor gets.
class CompletionPopup final : public QFrame {
    Q_OBJECT
  public:
    explicit CompletionPopup(QWidget *parent);

    /// Shows `words`, of which there is at least one, the first one being the current one.
    void SetWords(Completions words);
    /// `font` is the one that the words have.
    void SetWordFont(const QFont &font);
    /// Below `line`, the place of the word in its line in global coordinates; above it where the
    /// screen has no room below.
    void ShowAt(const QRect &line);

    const Completion &CurrentWord() const;
    int PageSize() const;
    /// Makes the word `steps` further down the current one; stops at both ends.
    void Move(int steps);

  signals:
    /// The person clicked a word, which is the current one now.
    void WordChosen();

  private:
    void Build();
    void FitToWords();
    void ShowRows(int rows);
    int RowHeight() const;
    void ShowHelp(int row);

    CompletionModel *Model_;
    QListView *List_;
    QLabel *Help_;
};

} // namespace Quillbox
