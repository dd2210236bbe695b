// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/MountedDrives.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Quillbox {
namespace {

/// Below these folders the system and people mount disks for people.
constexpr std::array PeoplesFolders = {"/media/", "/mnt/", "/run/media/"};

/// Below these folders the system mounts what it needs itself, whatever the file system.
constexpr std::array SystemsFolders = {"/boot", "/dev", "/etc", "/proc", "/run",
                                       "/snap", "/sys", "/tmp", "/usr",  "/var"};

/// File systems on disks, cards, discs and other machines.
constexpr std::array DiskFileSystems = {
    "9p",     "apfs", "bcachefs", "btrfs",   "cifs",  "exfat",    "ext2",    "ext3",
    "ext4",   "f2fs", "fuse",     "fuseblk", "hfs",   "hfsplus",  "iso9660", "jfs",
    "msdos",  "nfs",  "nfs4",     "ntfs",    "ntfs3", "reiserfs", "smb3",    "udf",
    "vboxsf", "vfat", "virtiofs", "xfs",     "zfs"};

template <typename Names>
bool IsAmong(const Names &names, const QString &text) {
    return std::any_of(names.begin(), names.end(),
                       [&](const char *name) { return text == QLatin1String(name); });
}

bool IsBelow(const QString &path, const QString &folder) {
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

template <typename Names>
bool IsBelowOne(const Names &folders, const QString &path) {
    return std::any_of(folders.begin(), folders.end(), [&](const char *folder) {
        return IsBelow(path, QString::fromLatin1(folder));
    });
}

bool IsForPeople(const Mount &mount) {
    const bool isOnDisk =
        IsAmong(DiskFileSystems, mount.FileSystem) || mount.FileSystem.startsWith(u"fuse.");
    return isOnDisk &&
           (IsBelowOne(PeoplesFolders, mount.Path) || !IsBelowOne(SystemsFolders, mount.Path));
}

} // namespace

std::vector<Drive> DrivesOf(const QString &home, std::vector<Mount> mounts) {
    std::vector<Drive> drives = {{QStringLiteral("/"), QStringLiteral("Sistema")}};
    if (home != QStringLiteral("/"))
        drives.push_back({home, QStringLiteral("Personal")});
    std::sort(mounts.begin(), mounts.end(),
              [](const Mount &left, const Mount &right) { return left.Path < right.Path; });
    for (const Mount &mount : mounts) {
        const bool isNew = std::none_of(drives.begin(), drives.end(), [&](const Drive &drive) {
            return drive.Path == mount.Path;
        });
        if (isNew && IsForPeople(mount))
            drives.push_back({mount.Path, mount.Label});
    }
    return drives;
}

} // namespace Quillbox
