// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/PictureProblem.h"

#include <QString>

namespace Quillbox {

/// The media browser's window as its rules see it. A drive is known by the path of its root.
class MediaBrowserWindow {
  public:
    virtual ~MediaBrowserWindow() = default;

    virtual QString SelectedDrive() const = 0;
    /// Nothing happens for an empty name. The folder list goes to that drive unless it is there.
    virtual void SelectDrive(const QString &drive) = 0;
    /// The open folder of the folder list.
    virtual QString FolderPath() const = 0;
    /// Opens a folder in the folder list, which raises its change; run-time error 68 when it is the
    /// root of a drive that is not there.
    virtual void SetFolderPath(const QString &path) = 0;
    /// The folder whose files the file list shows.
    virtual QString FilePath() const = 0;
    virtual void SetFilePath(const QString &path) = 0;
    /// The name of the selected file without its path; empty when none is selected.
    virtual QString SelectedFile() const = 0;
    virtual void EnableInsertPath(bool enabled) = 0;
    virtual PictureProblem ShowPicture(const QString &path) = 0;
    virtual void Hide() = 0;
};

} // namespace Quillbox
