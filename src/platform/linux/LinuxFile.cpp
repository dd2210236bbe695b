// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/LinuxFile.h"

#include <cerrno>
#include <utility>

namespace Quillbox {

template <typename Call>
auto LinuxFile::Checked(Call call) {
    decltype(call()) result = -1;
    if (Error_ != 0)
        return result;
    do
        result = call();
    while (result < 0 && errno == EINTR);
    if (result < 0)
        Error_ = errno;
    return result;
}

LinuxFile::LinuxFile(const SystemCalls &calls, const std::filesystem::path &name, int flags,
                     mode_t mode)
    : Calls_(calls) {
    if (name.native().find('\0') != std::string::npos)
        Error_ = EINVAL; // the system would see the name up to there
    Descriptor_ = Checked([&] { return Calls_.Open(name.c_str(), flags | O_CLOEXEC, mode); });
}

LinuxFile::~LinuxFile() {
    if (Descriptor_ >= 0)
        Calls_.Close(Descriptor_);
}

struct stat LinuxFile::Status() {
    struct stat status {};
    Checked([&] { return Calls_.Fstat(Descriptor_, &status); });
    return status;
}

std::string_view LinuxFile::Read(char *buffer, std::size_t capacity) {
    const ssize_t count = Checked([&] { return Calls_.Read(Descriptor_, buffer, capacity); });
    return {buffer, count > 0 ? static_cast<std::size_t>(count) : 0};
}

bool LinuxFile::Write(std::string_view bytes) {
    while (Error_ == 0 && !bytes.empty()) {
        const ssize_t count =
            Checked([&] { return Calls_.Write(Descriptor_, bytes.data(), bytes.size()); });
        if (count == 0)
            Error_ = EIO;
        if (count > 0) {
            Written_ += count;
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    return Error_ == 0;
}

bool LinuxFile::CutAfterWritten() {
    return Checked([&] { return Calls_.Ftruncate(Descriptor_, Written_); }) == 0;
}

void LinuxFile::MakeLike(const std::filesystem::path &model) {
    struct stat old {};
    Checked([&] { return Calls_.Lstat(model.c_str(), &old); });
    const struct stat made = Status();
    mode_t mode = old.st_mode & 07777;
    const bool sameOwner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (!sameOwner && !TrySetOwner(old.st_uid, old.st_gid)) {
        TrySetOwner(static_cast<uid_t>(-1), old.st_gid);
        // Of two owners neither may lend the other the rights to run as itself.
        mode &= 0777;
    }
    Checked([&] { return Calls_.Fchmod(Descriptor_, mode); });
}

void LinuxFile::RequireRegularFile() {
    const mode_t mode = Status().st_mode;
    if (Error_ == 0 && !S_ISREG(mode))
        Error_ = S_ISDIR(mode) ? EISDIR : ENXIO;
}

bool LinuxFile::TrySetOwner(uid_t user, gid_t group) {
    return Error_ == 0 && Calls_.Fchown(Descriptor_, user, group) == 0;
}

bool LinuxFile::Sync() {
    return Checked([&] { return Calls_.Fsync(Descriptor_); }) == 0;
}

bool LinuxFile::Close() {
    if (Descriptor_ < 0)
        return Error_ == 0;
    const int descriptor = std::exchange(Descriptor_, -1);
    // An interrupted close has closed the descriptor all the same: it must not be repeated.
    if (Calls_.Close(descriptor) != 0 && errno != EINTR && Error_ == 0)
        Error_ = errno;
    return Error_ == 0;
}

} // namespace Quillbox
