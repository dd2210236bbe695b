// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"

#include "platform/windows/WindowsApi.h"

namespace Quillbox {

FileProblem ProblemOf(int code) {
    switch (static_cast<DWORD>(code)) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return FileProblem::Missing;
    case ERROR_ACCESS_DENIED:
        return FileProblem::NoPermission;
    case ERROR_FILE_READ_ONLY:
        return FileProblem::WriteProtected;
    case ERROR_DIRECTORY:
        return FileProblem::IsFolder;
    case ERROR_BAD_DEV_TYPE:
        return FileProblem::IsDevice;
    case ERROR_FILE_EXISTS:
        return FileProblem::NameTaken;
    case ERROR_FILENAME_EXCED_RANGE:
        return FileProblem::NameTooLong;
    case ERROR_INVALID_NAME:
        return FileProblem::InvalidName;
    case ERROR_WRITE_PROTECT:
        return FileProblem::DiskWriteProtected;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return FileProblem::DiskFull;
    case ERROR_CRC:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
        return FileProblem::DiskFailed;
    case ERROR_NOT_READY:
        return FileProblem::DiskNotReady;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return FileProblem::InUse;
    default:
        return FileProblem::Unknown;
    }
}

} // namespace Quillbox
