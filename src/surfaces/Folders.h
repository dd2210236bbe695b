// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Quillbox {

/// Where walking the disks begins: a drive of the system or a place that a person looks for files.
struct Drive {
    QString Path;  ///< of its root folder: "C:\", "/" or "/media/eva/USB"
    QString Label; ///< what people call it; empty when it has no name
    bool operator==(const Drive &) const = default;
};

enum class FolderState { Readable, Denied, Missing };

struct FolderNames {
    QStringList Names; ///< without path, in no order; none of a folder that cannot be read
    FolderState State = FolderState::Readable;
};

/// Drives, folders and the files in them. Hidden names are left out. Paths are those of the system.
class Folders {
  public:
    virtual ~Folders() = default;

    /// The drives at this moment, in the order in which they are shown.
    virtual std::vector<Drive> Drives() = 0;
    /// Run-time error 68 when the drive is not there or holds no medium.
    virtual void RequireDrive(const QString &path) = 0;
    /// The process's current folder, or where people keep their files when that is gone.
    virtual QString CurrentFolder() = 0;
    virtual FolderNames SubFolders(const QString &folder) = 0;
    virtual FolderNames Files(const QString &folder) = 0;
};

} // namespace Quillbox
