// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileSystem.h"

namespace Quillbox {

class WindowsFileSystem : public FileSystem {
  public:
    std::unique_ptr<CheckedFile> OpenContent(const QString &path) const override;
    std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path) const override;
    std::unique_ptr<CheckedFile> Open(const std::filesystem::path &name,
                                      FileAccess access) const override;
    std::unique_ptr<CheckedFile> Create(const std::filesystem::path &name,
                                        Readers readers) const override;
    int MoveOver(const std::filesystem::path &from, const std::filesystem::path &to) const override;
    int SyncFolderOf(const std::filesystem::path &name) const override;
    void Remove(const std::filesystem::path &name) const override;
};

} // namespace Quillbox
