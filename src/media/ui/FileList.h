// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

#include <QListView>
#include <QStringListModel>

namespace Quillbox {

/// The file list: the media files of one folder. A double-click or Return opens the selected file,
/// the space bar asks to see it. A folder without such files, or one that cannot be read, says so.
class FileList final : public QListView {
    Q_OBJECT
  public:
    FileList(Folders &folders, QWidget *parent);

    QString Path() const { return Path_; }
    /// The same path again looks for new files and keeps the selection.
    void SetPath(const QString &path);
    /// Empty when no file is selected.
    QString SelectedFile() const;
    /// What stands in place of files; empty when there are some.
    QString Notice() const { return Notice_; }

  signals:
    void Opened();
    void PreviewWanted();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void Select(const QString &file);

    Folders &Folders_;
    QString Path_;
    QString Notice_;
    QStringListModel *Files_;
};

} // namespace Quillbox
