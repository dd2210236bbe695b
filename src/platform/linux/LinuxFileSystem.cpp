// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxFileSystem.h"

#include "platform/linux/LinuxFile.h"

#include <QFile>

#include <cerrno>

namespace Quillbox {

namespace {

constexpr mode_t ForOwnerAlone = S_IRUSR | S_IWUSR;
/// Less what the umask takes away.
constexpr mode_t AsUsual = 0666;

} // namespace

std::filesystem::path FolderOf(const std::filesystem::path &name) {
    return name.has_parent_path() ? name.parent_path() : ".";
}

std::unique_ptr<CheckedFile> LinuxFileSystem::OpenContent(const QString &path) const {
    // Without O_NONBLOCK, opening a named pipe waits until somebody writes to it.
    auto file = std::make_unique<LinuxFile>(Calls_, QFile::encodeName(path).toStdString(),
                                            O_RDONLY | O_NONBLOCK);
    file->RequireRegularFile();
    return file;
}

std::unique_ptr<CheckedFile> LinuxFileSystem::Open(const std::filesystem::path &name,
                                                   FileAccess access) const {
    const int flags = access == FileAccess::Reading ? O_RDONLY : O_WRONLY;
    return std::make_unique<LinuxFile>(Calls_, name, flags);
}

std::unique_ptr<CheckedFile> LinuxFileSystem::Create(const std::filesystem::path &name,
                                                     Readers readers) const {
    return std::make_unique<LinuxFile>(Calls_, name, O_WRONLY | O_CREAT | O_EXCL,
                                       readers == Readers::OwnerAlone ? ForOwnerAlone : AsUsual);
}

int LinuxFileSystem::MoveOver(const std::filesystem::path &from,
                              const std::filesystem::path &to) const {
    return Calls_.Rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int LinuxFileSystem::SyncFolderOf(const std::filesystem::path &name) const {
    LinuxFile folder(Calls_, FolderOf(name), O_RDONLY | O_DIRECTORY);
    // A folder that may be written but not listed cannot be opened, hence not flushed.
    if (folder.Error() == EACCES)
        return 0;
    folder.Sync();
    folder.Close();
    // Some network file systems flush folders on their own and know no such call.
    return folder.Error() == EINVAL ? 0 : folder.Error();
}

void LinuxFileSystem::Remove(const std::filesystem::path &name) const {
    Calls_.Unlink(name.c_str());
}

std::unique_ptr<const FileSystem> MakeFileSystem() { return std::make_unique<LinuxFileSystem>(); }

} // namespace Quillbox
