// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileSystem.h"
#include "platform/linux/SystemCalls.h"

#include <utility>

namespace Quillbox {

/// "." for the current folder.
std::filesystem::path FolderOf(const std::filesystem::path &name);

class LinuxFileSystem : public FileSystem {
  public:
    explicit LinuxFileSystem(SystemCalls calls = {})
        : Calls_(std::move(calls)) {}

    std::unique_ptr<CheckedFile> OpenContent(const QString &path) const override;
    /// A file or a folder without any write bit counts as protected for everybody, for the
    /// administrator too.
    std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path) const override;
    std::unique_ptr<CheckedFile> Open(const std::filesystem::path &name,
                                      FileAccess access) const override;
    std::unique_ptr<CheckedFile> Create(const std::filesystem::path &name,
                                        Readers readers) const override;
    int MoveOver(const std::filesystem::path &from, const std::filesystem::path &to) const override;
    int SyncFolderOf(const std::filesystem::path &name) const override;
    void Remove(const std::filesystem::path &name) const override;

  private:
    SystemCalls Calls_;
};

} // namespace Quillbox
