// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

namespace Quillbox {

/// The system's calls that reading and saving files are made of. Each can be replaced, so that a
/// test sees what a failure of that very call leaves on disk.
struct SystemCalls {
    std::function<int(const char *, struct stat *)> Lstat = ::lstat;
    std::function<int(const char *, struct stat *)> Stat = ::stat;
    std::function<int(int, struct stat *)> Fstat = ::fstat;
    std::function<int(const char *, int)> Access = ::access;
    std::function<ssize_t(const char *, char *, std::size_t)> Readlink = ::readlink;
    std::function<int(const char *, int, mode_t)> Open =
        [](const char *name, int flags, mode_t mode) { return ::open(name, flags, mode); };
    std::function<ssize_t(int, void *, std::size_t)> Read = ::read;
    std::function<ssize_t(int, const void *, std::size_t)> Write = ::write;
    std::function<int(int, off_t)> Ftruncate = ::ftruncate;
    std::function<int(int, uid_t, gid_t)> Fchown = ::fchown;
    std::function<int(int, mode_t)> Fchmod = ::fchmod;
    std::function<int(int)> Fsync = ::fsync;
    std::function<int(int)> Close = ::close;
    std::function<int(const char *, const char *)> Rename = ::rename;
    std::function<int(const char *)> Unlink = ::unlink;
};

} // namespace Quillbox
