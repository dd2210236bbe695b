// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// What kept a file from being read or written. The text that a person reads is that of the
/// problem.
enum class FileProblem {
    Unknown, ///< the text names the system's error number
    Missing, ///< the file when reading, its folder when writing
    NoPermission,
    NotAllowed, ///< by the system, whoever asks
    WriteProtected,
    IsFolder,
    IsDevice,
    NameTaken, ///< a new file cannot have this name
    NameTooLong,
    InvalidName,
    LinkToNowhere,
    DiskWriteProtected,
    DiskFull,
    QuotaUsedUp,
    TooLarge,
    DiskFailed,
    DiskNotReady,
    InUse,
    TooManyOpenFiles,
};

/// Why a file could not be read or written.
struct FileError {
    FileProblem Problem;
    int Code;     ///< the system's error number
    QString Text; ///< Spanish sentence without the file's name, ready for a message box
};

/// Of each system: what its error number means. `Unknown` for a number that is not in its table.
FileProblem ProblemOf(int code);

/// What the system's error number means to somebody who wanted to read a file.
FileError ReadFailure(int code);
/// What the system's error number means to somebody who wanted to write a file.
FileError WriteFailure(int code);
/// The same where the number alone does not tell the problem.
FileError WriteFailure(FileProblem problem, int code);

} // namespace Quillbox
