// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/SystemCalls.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <variant>

namespace Quillbox {

/// The place where a save has to put its bytes.
struct SaveTarget {
    QByteArray Name;                 ///< where the symbolic links end
    QByteArray Folder;               ///< the folder of `Name`, "." for the current one
    std::optional<struct stat> File; ///< the regular file that is there, if any
};

/// Follows the links of `path` and makes sure that the file and its folder may be written. A file
/// or a folder without any write bit counts as protected for everybody, for the administrator too.
std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path, const SystemCalls &calls);

/// The last name of a path.
QByteArray NameWithoutFolder(const QByteArray &path);

/// Makes renames and new names in `folder` durable. 0 or the system's error number.
int SyncFolder(const QByteArray &folder, const SystemCalls &calls);

/// Removes a file when it goes out of scope, unless it has been kept.
class RemovedFile {
  public:
    RemovedFile(const SystemCalls &calls, QByteArray name);
    ~RemovedFile();
    RemovedFile(const RemovedFile &) = delete;
    RemovedFile &operator=(const RemovedFile &) = delete;

    void Keep() { Kept_ = true; }

  private:
    const SystemCalls &Calls_;
    QByteArray Name_;
    bool Kept_ = false;
};

/// Writes `target` anew, without losing what other names of the same file show.
std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce,
                                      const SystemCalls &calls);

} // namespace Quillbox
