// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/SaveTarget.h"

#include "platform/FileErrors.h"

#include <utility>

namespace Quillbox {

std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path) {
    const std::wstring name = NativePath(path);
    CheckedFile file(name, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (file.Error() == ERROR_FILE_NOT_FOUND)
        return SaveTarget{name};
    if (file.Error() == 0 && !file.IsOnDisk())
        return WriteFailure(ERROR_BAD_DEV_TYPE);
    const BY_HANDLE_FILE_INFORMATION information = file.Information();
    const std::wstring finalName = file.FinalName();
    if (file.Error() != 0)
        return WriteFailure(file.Error());
    const DWORD attributes = information.dwFileAttributes;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return WriteFailure(ERROR_DIRECTORY);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return WriteFailure(ERROR_FILE_READ_ONLY);
    return SaveTarget{finalName, true, information.nNumberOfLinks > 1, attributes};
}

RemovedFile::RemovedFile(std::wstring name, CheckedFile &file)
    : Name_(std::move(name))
    , File_(file) {}

RemovedFile::~RemovedFile() {
    if (Kept_)
        return;
    File_.Close();
    ::DeleteFileW(Name_.c_str());
}

} // namespace Quillbox
