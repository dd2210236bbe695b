// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileErrors.h"

#include <cerrno>

namespace Quillbox {

FileProblem ProblemOf(int code) {
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        return FileProblem::Missing;
    case EACCES:
        return FileProblem::NoPermission;
    case EPERM:
        return FileProblem::NotAllowed;
    case EISDIR:
        return FileProblem::IsFolder;
    case ENXIO:
        return FileProblem::IsDevice;
    case EEXIST:
        return FileProblem::NameTaken;
    case ENAMETOOLONG:
        return FileProblem::NameTooLong;
    case EINVAL:
        return FileProblem::InvalidName;
    case ELOOP:
        return FileProblem::LinkToNowhere;
    case EROFS:
        return FileProblem::DiskWriteProtected;
    case ENOSPC:
        return FileProblem::DiskFull;
    case EDQUOT:
        return FileProblem::QuotaUsedUp;
    case EFBIG:
        return FileProblem::TooLarge;
    case EIO:
        return FileProblem::DiskFailed;
    case EBUSY:
    case ETXTBSY:
        return FileProblem::InUse;
    case EMFILE:
    case ENFILE:
        return FileProblem::TooManyOpenFiles;
    default:
        return FileProblem::Unknown;
    }
}

} // namespace Quillbox
