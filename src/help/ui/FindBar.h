// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTextDocument>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace Quillbox {

/// The slim bar that finds a text in the page above it. Letter case does not matter, and the search
/// goes round at the ends of the page.
class FindBar final : public QFrame {
    Q_OBJECT
  public:
    /// A child of `page`, which places it.
    explicit FindBar(QTextEdit &page);

    /// Shows the bar with the keyboard in it, and the selection as the text to find.
    void Open();
    bool HasTerm() const;
    /// A hidden bar appears without the keyboard when there is something to tell.
    void FindNext();
    void FindPrevious();

  signals:
    /// The bar has appeared or gone; the page gives it its place.
    void VisibilityChanged();

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void Build();
    void AddButton(const QString &name, const QString &caption, void (FindBar::*command)());
    void Find(QTextDocument::FindFlags direction);
    void FindWhileTyping();
    void Appear();
    void Tell(const QString &result);
    void Close();

    QTextEdit &Page_;
    QLineEdit *Term_;
    QLabel *Result_;
};

} // namespace Quillbox
