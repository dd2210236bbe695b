// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/FolderList.h"

#include "media/FolderPaths.h"
#include "media/MediaFiles.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

namespace Quillbox {
namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int DepthRole = Qt::UserRole + 1;
constexpr int StepPixels = 12;

/// Draws an entry as far to the right as its folder lies deep.
class IndentingDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override {
        QStyleOptionViewItem indented = option;
        indented.rect.setLeft(option.rect.left() + IndentOf(index));
        QStyledItemDelegate::paint(painter, indented, index);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(IndentOf(index), 0);
    }

  private:
    static int IndentOf(const QModelIndex &index) {
        return index.data(DepthRole).toInt() * StepPixels;
    }
};

QStandardItem *NewItem(const FolderEntry &entry) {
    static const QIcon closed(QStringLiteral(":/icons/carpeta.svg"));
    static const QIcon opened(QStringLiteral(":/icons/carpeta_abierta.svg"));
    auto *item = new QStandardItem(entry.Opened ? opened : closed, entry.Name);
    item->setData(entry.Path, PathRole);
    item->setData(entry.Depth, DepthRole);
    item->setEditable(false);
    return item;
}

} // namespace

FolderList::FolderList(Folders &folders, QWidget *parent)
    : QListView(parent)
    , Folders_(folders) {
    setObjectName(QStringLiteral("dirCarpetas"));
    setToolTip(QStringLiteral("Lista de carpetas"));
    setModel(&Entries_);
    setItemDelegate(new IndentingDelegate(this));
    setVerticalScrollMode(ScrollPerPixel);
}

void FolderList::SetPath(const QString &path) {
    Path_ = path;
    Fill();
    Select(Path_);
    emit Changed();
}

void FolderList::Refresh() {
    const QString selected = currentIndex().data(PathRole).toString();
    Fill();
    Select(selected);
    emit Changed();
}

void FolderList::GoUp() {
    const QString left = Path_;
    const QString above = ParentFolder(Path_);
    if (above.isEmpty())
        return;
    SetPath(above);
    Select(left);
}

void FolderList::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return OpenFolderAt(currentIndex());
    QListView::keyPressEvent(event);
}

void FolderList::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        OpenFolderAt(indexAt(event->position().toPoint()));
}

void FolderList::Fill() {
    QList<QStandardItem *> items;
    for (const FolderEntry &entry :
         FolderEntriesOf(Path_, SortedForPeople(Folders_.SubFolders(Path_).Names)))
        items.append(NewItem(entry));
    Entries_.clear();
    Entries_.invisibleRootItem()->appendRows(items);
}

/// A folder that is gone leaves the open folder selected.
void FolderList::Select(const QString &path) {
    QModelIndexList found;
    for (const QString &wanted : {path, Path_})
        if (found.isEmpty())
            found = Entries_.match(Entries_.index(0, 0), PathRole, wanted, 1, Qt::MatchExactly);
    setCurrentIndex(found.value(0));
    scrollTo(currentIndex());
}

void FolderList::OpenFolderAt(const QModelIndex &index) {
    if (index.isValid())
        SetPath(index.data(PathRole).toString());
}

} // namespace Quillbox
