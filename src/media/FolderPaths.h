// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

namespace Quillbox {

/// A line of the folder list.
struct FolderEntry {
    QString Name; ///< as shown: the root by its whole path
    QString Path;
    int Depth = 0;       ///< 0 for the root
    bool Opened = false; ///< on the way to the open folder, or this folder itself
    bool operator==(const FolderEntry &) const = default;
};

/// `name` in `folder`, with exactly one separator between them.
QString JoinedPath(const QString &folder, const QString &name);

/// Empty for a root.
QString ParentFolder(const QString &folder);

/// The folders from the root down to `folder`, each one step deeper, then its sub-folders in the
/// order given.
std::vector<FolderEntry> FolderEntriesOf(const QString &folder, const QStringList &subFolders);

/// The drive whose root is nearest above `folder`; empty when there is none.
QString FindDriveHolding(const QString &folder, const std::vector<Drive> &drives);

} // namespace Quillbox
