// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"
#include "fakes/CallLog.h"
#include "media/MediaBrowserWindow.h"

#include <functional>
#include <optional>

namespace Quillbox {

/// The lists of the media browser as values. Opening a folder raises the change, as the real folder
/// list does.
class FakeMediaWindow : public MediaBrowserWindow {
  public:
    explicit FakeMediaWindow(CallLog &log)
        : Log_(log) {}

    QString Drive;
    QString Folder;
    QString FileFolder;
    QString File;
    bool InsertEnabled = false;
    std::optional<RuntimeError> FolderError;
    PictureProblem Problem = PictureProblem::None;
    std::function<void()> FolderChanged = [] {};

    QString SelectedDrive() const override { return Drive; }
    void SelectDrive(const QString &drive) override {
        Log_.Add("media.SelectDrive", drive);
        if (!drive.isEmpty())
            Drive = drive;
    }
    QString FolderPath() const override { return Folder; }
    void SetFolderPath(const QString &path) override {
        Log_.Add("media.SetFolderPath", path);
        if (FolderError)
            throw *FolderError;
        Folder = path;
        FolderChanged();
    }
    QString FilePath() const override { return FileFolder; }
    void SetFilePath(const QString &path) override {
        Log_.Add("media.SetFilePath", path);
        FileFolder = path;
    }
    QString SelectedFile() const override { return File; }
    void EnableInsertPath(bool enabled) override {
        Log_.Add("media.EnableInsertPath", enabled);
        InsertEnabled = enabled;
    }
    PictureProblem ShowPicture(const QString &path) override {
        Log_.Add("media.ShowPicture", path);
        return Problem;
    }
    void Hide() override { Log_.Add("media.Hide"); }

  private:
    CallLog &Log_;
};

} // namespace Quillbox
