// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/CheckedFile.h"

#include <cerrno>
#include <utility>

namespace Quillbox {

template <typename Call>
auto CheckedFile::Checked(Call call) {
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

CheckedFile::CheckedFile(const SystemCalls &calls, const QByteArray &name, int flags, mode_t mode)
    : Calls_(calls) {
    Descriptor_ = Checked([&] { return Calls_.Open(name.constData(), flags | O_CLOEXEC, mode); });
}

CheckedFile::~CheckedFile() {
    if (Descriptor_ >= 0)
        Calls_.Close(Descriptor_);
}

struct stat CheckedFile::Status() {
    struct stat status {};
    Checked([&] { return Calls_.Fstat(Descriptor_, &status); });
    return status;
}

std::string_view CheckedFile::Read(char *buffer, std::size_t capacity) {
    const ssize_t count = Checked([&] { return Calls_.Read(Descriptor_, buffer, capacity); });
    return {buffer, count > 0 ? static_cast<std::size_t>(count) : 0};
}

bool CheckedFile::Write(std::string_view bytes) {
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

bool CheckedFile::CutAfterWritten() {
    return Checked([&] { return Calls_.Ftruncate(Descriptor_, Written_); }) == 0;
}

bool CheckedFile::SetMode(mode_t mode) {
    return Checked([&] { return Calls_.Fchmod(Descriptor_, mode); }) == 0;
}

bool CheckedFile::TrySetOwner(uid_t user, gid_t group) {
    return Error_ == 0 && Calls_.Fchown(Descriptor_, user, group) == 0;
}

bool CheckedFile::Sync() {
    return Checked([&] { return Calls_.Fsync(Descriptor_); }) == 0;
}

bool CheckedFile::Close() {
    if (Descriptor_ < 0)
        return Error_ == 0;
    const int descriptor = std::exchange(Descriptor_, -1);
    // An interrupted close has closed the descriptor all the same: it must not be repeated.
    if (Calls_.Close(descriptor) != 0 && errno != EINTR && Error_ == 0)
        Error_ = errno;
    return Error_ == 0;
}

} // namespace Quillbox
