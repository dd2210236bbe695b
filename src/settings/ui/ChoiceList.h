// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace Quillbox {

/// A list of a few fixed entries, tall enough for all of them. The entry that is current is always
/// the selected one; none is while no entry is current.
class ChoiceList final : public QListWidget {
    Q_OBJECT
  public:
    explicit ChoiceList(const QStringList &entries);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// Another entry is selected, by the person or by the program.
    void Chosen(int row);

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void focusInEvent(QFocusEvent *event) override;
};

} // namespace Quillbox
