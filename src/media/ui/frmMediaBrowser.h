// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/MediaBrowser.h"
#include "media/MediaBrowserWindow.h"

#include <QDialog>

#include <functional>

class QPushButton;
class QSplitter;
class QVBoxLayout;

namespace Quillbox {

class DriveList;
class EventBoundary;
class FileList;
class FolderList;
class Folders;
class MainWindow;

/// The media browser. Once made it stays; closing it in any way only hides it.
class frmMediaBrowser final : public QDialog, public MediaBrowserWindow {
    Q_OBJECT
  public:
    using RulesMaker = std::function<MediaBrowser(MediaBrowserWindow &)>;
    frmMediaBrowser(const RulesMaker &rulesOver, MainWindow &mainWindow, Folders &folders,
                    const EventBoundary &boundary, QWidget *owner);

    void ComeForward();

    QString SelectedDrive() const override;
    void SelectDrive(const QString &drive) override;
    QString FolderPath() const override;
    void SetFolderPath(const QString &path) override;
    QString FilePath() const override;
    void SetFilePath(const QString &path) override;
    QString SelectedFile() const override;
    void EnableInsertPath(bool enabled) override;
    PictureProblem ShowPicture(const QString &path) override;
    void Hide() override;

    /// Escape and the close box do what the button "Volver" does.
    void reject() override;

  protected:
    bool event(QEvent *event) override;

  private:
    void BuildLists(QSplitter &splitter);
    void BuildButtons(QVBoxLayout &layout);
    void AddShortcuts();
    void ConnectLists();
    void Run(void (MediaBrowser::*step)());

    MediaBrowser Rules_;
    MainWindow &MainWindow_;
    Folders &Folders_;
    const EventBoundary &Boundary_;
    DriveList *drvUnidad = nullptr;
    FolderList *dirCarpetas = nullptr;
    FileList *filArchivos = nullptr;
    QPushButton *cmdInsertPath = nullptr;
};

} // namespace Quillbox
