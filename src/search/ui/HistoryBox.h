// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace Quillbox {

/// A text box with a list of what was in it before. Down opens the list. Typing completes nothing:
/// what is looked for is what was typed.
class HistoryBox final : public QComboBox {
    Q_OBJECT
  public:
    explicit HistoryBox(QWidget *parent);

    /// The text stays.
    void SetHistory(const QStringList &history);
    void SetText(const QString &text) { setEditText(text); }
    QString Text() const { return currentText(); }

  protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Quillbox
