// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/FolderPaths.h"

#include "base/Paths.h"

#include <algorithm>

namespace Quillbox {
namespace {

QString WithSeparator(const QString &folder) {
    return folder.endsWith(PathSeparator) ? folder : folder + PathSeparator;
}

/// "/" or "C:\".
QString RootOf(const QString &folder) { return folder.left(folder.indexOf(PathSeparator) + 1); }

} // namespace

QString JoinedPath(const QString &folder, const QString &name) {
    return WithSeparator(folder) + name;
}

QString ParentFolder(const QString &folder) {
    const QString root = RootOf(folder);
    if (folder == root)
        return {};
    const qsizetype last = folder.lastIndexOf(PathSeparator);
    return folder.left(std::max(last, root.size()));
}

std::vector<FolderEntry> FolderEntriesOf(const QString &folder, const QStringList &subFolders) {
    const QString root = RootOf(folder);
    std::vector<FolderEntry> entries = {{root, root, 0, true}};
    const QStringList names = folder.mid(root.size()).split(PathSeparator, Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const FolderEntry &above = entries.back();
        entries.push_back({name, JoinedPath(above.Path, name), above.Depth + 1, true});
    }
    const FolderEntry open = entries.back();
    for (const QString &name : subFolders)
        entries.push_back({name, JoinedPath(open.Path, name), open.Depth + 1, false});
    return entries;
}

QString FindDriveHolding(const QString &folder, const std::vector<Drive> &drives) {
    QString nearest;
    for (const Drive &drive : drives)
        if (drive.Path.size() > nearest.size() &&
            WithSeparator(folder).startsWith(WithSeparator(drive.Path)))
            nearest = drive.Path;
    return nearest;
}

} // namespace Quillbox
