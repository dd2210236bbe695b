// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

namespace Quillbox {

/// Of each system: its drives and folders. A folder is read by names and kinds alone, so that one
/// with 20,000 files opens at once. QDir leaves out names that are no UTF-8 and does not tell a
/// denied folder from a missing one.
class SystemFolders : public Folders {
  public:
    std::vector<Drive> Drives() override;
    void RequireDrive(const QString &path) override;
    QString CurrentFolder() override;
    FolderNames SubFolders(const QString &folder) override;
    FolderNames Files(const QString &folder) override;
};

} // namespace Quillbox
