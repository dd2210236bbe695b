// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemFolders.h"

#include "base/RuntimeError.h"
#include "platform/linux/MountedDrives.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

namespace Quillbox {
namespace {

enum class EntryKind { File, Folder, Other };

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR *)>;

EntryKind KindOfMode(mode_t mode) {
    if (S_ISDIR(mode))
        return EntryKind::Folder;
    return S_ISREG(mode) ? EntryKind::File : EntryKind::Other;
}

/// Most file systems tell the kind with the name; only links and the others need a look.
EntryKind KindOf(DIR &folder, const dirent &entry) {
    if (entry.d_type == DT_DIR)
        return EntryKind::Folder;
    if (entry.d_type == DT_REG)
        return EntryKind::File;
    struct stat status {};
    const bool isUnclear = entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
    if (!isUnclear || ::fstatat(::dirfd(&folder), entry.d_name, &status, 0) != 0)
        return EntryKind::Other;
    return KindOfMode(status.st_mode);
}

FolderState StateOfError(int code) {
    return code == EACCES || code == EPERM ? FolderState::Denied : FolderState::Missing;
}

FolderNames NamesIn(const QString &path, EntryKind wanted) {
    const OpenFolder folder(::opendir(QFile::encodeName(path).constData()), ::closedir);
    if (!folder)
        return {{}, StateOfError(errno)};
    FolderNames found;
    while (const dirent *entry = ::readdir(folder.get()))
        if (entry->d_name[0] != '.' && KindOf(*folder, *entry) == wanted)
            found.Names.append(QFile::decodeName(entry->d_name));
    return found;
}

} // namespace

std::vector<Drive> SystemFolders::Drives() {
    std::vector<Mount> mounts;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes)
        mounts.push_back(
            {volume.rootPath(), QString::fromLatin1(volume.fileSystemType()), volume.name()});
    return DrivesOf(QDir::homePath(), std::move(mounts));
}

/// A volume that was unmounted may leave the folder behind on which it lay.
void SystemFolders::RequireDrive(const QString &path) {
    const std::vector<Drive> drives = Drives();
    const bool isKnown = std::any_of(drives.begin(), drives.end(),
                                     [&](const Drive &drive) { return drive.Path == path; });
    const OpenFolder folder(::opendir(QFile::encodeName(path).constData()), ::closedir);
    const bool isThere = folder || StateOfError(errno) == FolderState::Denied;
    if (!isKnown || !isThere)
        throw DeviceUnavailable();
}

QString SystemFolders::CurrentFolder() {
    const QString current = QDir::currentPath();
    return QFile::exists(current) ? current : QDir::homePath();
}

FolderNames SystemFolders::SubFolders(const QString &folder) {
    return NamesIn(folder, EntryKind::Folder);
}

FolderNames SystemFolders::Files(const QString &folder) { return NamesIn(folder, EntryKind::File); }

} // namespace Quillbox
