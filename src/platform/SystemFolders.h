// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

namespace Quillbox {

/// The drives and folders of the system.
class SystemFolders : public Folders {
  public:
    std::vector<Drive> Drives() override;
    void RequireDrive(const QString &path) override;
    QString CurrentFolder() override;
    FolderNames SubFolders(const QString &folder) override;
    FolderNames Files(const QString &folder) override;
};

} // namespace Quillbox
