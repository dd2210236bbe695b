// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/FileList.h"

#include "media/MediaFiles.h"
#include "widgets/Controls.h"

#include <QFocusEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Quillbox {
namespace {

constexpr int NoticeMargin = 12;

QString NoticeOf(FolderState state) {
    switch (state) {
    case FolderState::Denied:
        return QStringLiteral("No tienes permiso para leer esta carpeta.");
    case FolderState::Missing:
        return QStringLiteral("Esta carpeta no está disponible.");
    case FolderState::Readable:
        break;
    }
    return QStringLiteral("No hay archivos de medios en esta carpeta.");
}

QIcon IconOf(MediaKind kind) {
    static const QIcon model(QStringLiteral(":/icons/archivo_modelo.svg"));
    static const QIcon picture(QStringLiteral(":/icons/archivo_imagen.svg"));
    static const QIcon sound(QStringLiteral(":/icons/archivo_sonido.svg"));
    if (kind == MediaKind::Model)
        return model;
    return kind == MediaKind::Picture ? picture : sound;
}

/// Names with the picture of their kind, which is looked up only for the names in view.
class FileNames final : public QStringListModel {
  public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex &index, int role) const override {
        return role == Qt::DecorationRole
                   ? IconOf(MediaKindOf(index.data(Qt::DisplayRole).toString()))
                   : QStringListModel::data(index, role);
    }
};

} // namespace

FileList::FileList(Folders &folders, QWidget *parent)
    : QListView(parent)
    , Folders_(folders)
    , Files_(new FileNames(this)) {
    setObjectName(QStringLiteral("filArchivos"));
    setToolTip(QStringLiteral("Lista de archivos"));
    setModel(Files_);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
}

void FileList::SetPath(const QString &path) {
    const QString selected = path == Path_ ? SelectedFile() : QString();
    Path_ = path;
    const FolderNames found = Folders_.Files(path);
    const QStringList files = SortedForPeople(NamesMatching(found.Names, MediaPatterns));
    Notice_ = files.isEmpty() ? NoticeOf(found.State) : QString();
    setAccessibleDescription(Notice_);
    Files_->setStringList(files);
    Select(selected);
}

QString FileList::SelectedFile() const {
    const QModelIndexList rows = selectedIndexes();
    return rows.isEmpty() ? QString() : rows.constFirst().data().toString();
}

void FileList::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !SelectedFile().isEmpty())
        return Opened();
    if (event->key() == Qt::Key_Space)
        return PreviewWanted();
    QListView::keyPressEvent(event);
}

void FileList::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        emit Opened();
}

void FileList::focusInEvent(QFocusEvent *event) {
    QListView::focusInEvent(event);
    const bool byKeyboard = event->reason() == Qt::TabFocusReason ||
                            event->reason() == Qt::BacktabFocusReason ||
                            event->reason() == Qt::ShortcutFocusReason;
    if (byKeyboard)
        SelectCurrentEntry(*this);
}

void FileList::paintEvent(QPaintEvent *event) {
    QListView::paintEvent(event);
    if (Notice_.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(NoticeMargin, NoticeMargin, -NoticeMargin, 0),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, Notice_);
}

void FileList::Select(const QString &file) {
    const QModelIndexList found = file.isEmpty()
                                      ? QModelIndexList()
                                      : Files_->match(Files_->index(0), Qt::DisplayRole, file, 1,
                                                      Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.isEmpty())
        setCurrentIndex(found.constFirst());
    else
        scrollToTop();
}

} // namespace Quillbox
