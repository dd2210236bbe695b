// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

#include <QListView>
#include <QStandardItemModel>

namespace Quillbox {

struct FolderEntry;

/// The folder list: the way from the root to the open folder, each folder a step further in, and
/// below it the sub-folders. A double-click or Return opens a folder.
class FolderList final : public QListView {
    Q_OBJECT
  public:
    FolderList(Folders &folders, QWidget *parent);

    QString Path() const { return Path_; }
    /// A folder that cannot be read is opened, too; it just has no sub-folders to show.
    void SetPath(const QString &path);
    void Refresh();
    /// Opens the folder above, with the one just left selected.
    void GoUp();

  signals:
    void Changed();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

  private:
    void Fill();
    void Select(const QString &path);
    void OpenFolderAt(const QModelIndex &index);

    Folders &Folders_;
    QString Path_;
    QStandardItemModel Entries_;
};

} // namespace Quillbox
