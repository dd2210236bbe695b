// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemFolders.h"

#include "base/RuntimeError.h"
#include "platform/windows/WindowsApi.h"

#include <QFileInfo>

#include <array>

namespace Quillbox {
namespace {

enum class EntryKind { File, Folder };

/// Keeps the system from asking for a disk by itself while one is looked for.
class QuietErrors {
  public:
    QuietErrors() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &Before_); }
    ~QuietErrors() { SetThreadErrorMode(Before_, nullptr); }
    QuietErrors(const QuietErrors &) = delete;
    QuietErrors &operator=(const QuietErrors &) = delete;

  private:
    DWORD Before_ = 0;
};

struct Volume {
    bool IsThere = false;
    QString Label;
};

Volume VolumeOf(const QString &root) {
    const QuietErrors quiet;
    std::array<wchar_t, MAX_PATH + 1> label{};
    if (!GetVolumeInformationW(root.toStdWString().c_str(), label.data(),
                               static_cast<DWORD>(label.size()), nullptr, nullptr, nullptr, nullptr,
                               0))
        return {};
    return {true, QString::fromWCharArray(label.data())};
}

/// To ask a drive with removable disks, or one on another machine, for its label takes seconds.
QString LabelOf(const QString &root) {
    return GetDriveTypeW(root.toStdWString().c_str()) == DRIVE_FIXED ? VolumeOf(root).Label
                                                                     : QString();
}

FolderNames NamesIn(const QString &path, EntryKind wanted) {
    const QuietErrors quiet;
    const QString separator = path.endsWith(u'\\') ? QString() : QStringLiteral("\\");
    WIN32_FIND_DATAW entry{};
    const HANDLE search =
        FindFirstFileExW((path + separator + u'*').toStdWString().c_str(), FindExInfoBasic, &entry,
                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (error == ERROR_FILE_NOT_FOUND) // the root of an empty disk
            return {};
        return {{}, error == ERROR_ACCESS_DENIED ? FolderState::Denied : FolderState::Missing};
    }
    FolderNames found;
    do {
        const QString name = QString::fromWCharArray(entry.cFileName);
        const bool isFolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool isHidden = (entry.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0 ||
                              name == QStringLiteral(".") || name == QStringLiteral("..");
        if (!isHidden && isFolder == (wanted == EntryKind::Folder))
            found.Names.append(name);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return found;
}

} // namespace

std::vector<Drive> SystemFolders::Drives() {
    std::vector<Drive> drives;
    const DWORD present = GetLogicalDrives();
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        if ((present >> (letter - u'A') & 1U) == 0)
            continue;
        const QString root = QChar(letter) + QStringLiteral(":\\");
        drives.push_back({root, LabelOf(root)});
    }
    return drives;
}

void SystemFolders::RequireDrive(const QString &path) {
    if (!VolumeOf(path).IsThere)
        throw DeviceUnavailable();
}

QString SystemFolders::CurrentFolder() {
    const QString current = QDir::currentPath();
    return QDir::toNativeSeparators(QFileInfo::exists(current) ? current : QDir::homePath());
}

FolderNames SystemFolders::SubFolders(const QString &folder) {
    return NamesIn(folder, EntryKind::Folder);
}

FolderNames SystemFolders::Files(const QString &folder) { return NamesIn(folder, EntryKind::File); }

} // namespace Quillbox
