// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/ChoiceList.h"

#include "widgets/Controls.h"

#include <QFocusEvent>

namespace Quillbox {
namespace {

/// What a row has beside its text.
constexpr int SideMargin = 12;
/// Around every row.
constexpr int RowSpacing = 1;

} // namespace

ChoiceList::ChoiceList(const QStringList &entries) {
    addItems(entries);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSpacing(RowSpacing);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            emit Chosen(row);
    });
}

QSize ChoiceList::sizeHint() const { return minimumSizeHint(); }

QSize ChoiceList::minimumSizeHint() const {
    const int frame = 2 * frameWidth();
    const int row = sizeHintForRow(0) + 2 * RowSpacing;
    return {sizeHintForColumn(0) + SideMargin + frame, count() * row + frame};
}

/// A click with Ctrl would otherwise leave an entry current but not selected.
QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex &index,
                                                                 const QEvent *) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ChoiceList::focusInEvent(QFocusEvent *event) {
    QListWidget::focusInEvent(event);
    SelectCurrentEntry(*this);
}

} // namespace Quillbox
