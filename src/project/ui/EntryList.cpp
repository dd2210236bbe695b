// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ui/EntryList.h"

#include "widgets/Controls.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace Quillbox {
namespace {

/// So that neighbouring check marks do not touch.
constexpr int EntrySpacing = 2;

} // namespace

EntryList::EntryList(const QString &name, QWidget *parent)
    : QListWidget(parent) {
    setObjectName(name);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setResizeMode(Adjust);
    setEditTriggers(NoEditTriggers);
    setSpacing(EntrySpacing);
}

QListWidgetItem &EntryList::AddEntry(const QString &text) {
    auto *entry = new QListWidgetItem(text, this);
    entry->setToolTip(text.toHtmlEscaped());
    return *entry;
}

std::optional<int> EntryList::Selected() const {
    const QModelIndexList rows = selectedIndexes();
    return rows.isEmpty() ? std::nullopt : std::optional(rows.constFirst().row());
}

QStringList EntryList::Texts() const {
    QStringList texts;
    for (int row = 0; row < count(); ++row)
        texts.append(item(row)->text());
    return texts;
}

/// The list leaves Return to the dialog as well, which would press its default button.
void EntryList::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && Selected())
        return Activated();
    if (event->key() == Qt::Key_Delete)
        return DeletePressed();
    QListWidget::keyPressEvent(event);
}

void EntryList::mouseDoubleClickEvent(QMouseEvent *event) {
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && !IsOnCheckMark(event->position().toPoint()))
        emit Activated();
}

void EntryList::focusInEvent(QFocusEvent *event) {
    QListWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason)
        SelectCurrentEntry(*this);
}

bool EntryList::IsOnCheckMark(const QPoint &place) const {
    const QModelIndex index = indexAt(place);
    if (!index.isValid() || !index.data(Qt::CheckStateRole).isValid())
        return false;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.text = index.data().toString();
    option.features |= QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    return style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this)
        .contains(place);
}

} // namespace Quillbox
