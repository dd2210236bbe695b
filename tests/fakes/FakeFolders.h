// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RuntimeError.h"
#include "surfaces/Folders.h"

#include <map>
#include <set>

namespace Quillbox {

/// Drives and folders of a test.
class FakeFolders : public Folders {
  public:
    std::vector<Drive> AllDrives = {{"/", "Sistema"}};
    std::set<QString> EmptyDrives; ///< without a medium
    QString Current = "/";
    std::map<QString, QStringList> FolderNamesIn;
    std::map<QString, QStringList> FileNamesIn;
    std::map<QString, FolderState> Unreadable;

    std::vector<Drive> Drives() override { return AllDrives; }
    void RequireDrive(const QString &path) override {
        if (EmptyDrives.contains(path))
            throw DeviceUnavailable();
    }
    QString CurrentFolder() override { return Current; }
    FolderNames SubFolders(const QString &folder) override {
        return {FolderNamesIn[folder], StateOf(folder)};
    }
    FolderNames Files(const QString &folder) override {
        return {FileNamesIn[folder], StateOf(folder)};
    }

  private:
    FolderState StateOf(const QString &folder) const {
        const auto found = Unreadable.find(folder);
        return found == Unreadable.end() ? FolderState::Readable : found->second;
    }
};

} // namespace Quillbox
