// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LinuxFileSystem.h"

#include <cerrno>
#include <string>
#include <utility>

namespace Quillbox {

enum class Failing { Once, FromThenOn };

/// The system's own calls, of which the one with the number `FailAt` fails (0-based, all kinds
/// counted together). Must outlive the copies that are made of `Calls`.
class FailingCalls {
  public:
    explicit FailingCalls(int failAt, int error = EIO, Failing failing = Failing::Once)
        : FailAt_(failAt)
        , Error_(error)
        , Failing_(failing) {
        Wrap("lstat", Calls.Lstat);
        Wrap("stat", Calls.Stat);
        Wrap("fstat", Calls.Fstat);
        Wrap("access", Calls.Access);
        Wrap("readlink", Calls.Readlink);
        Wrap("open", Calls.Open);
        Wrap("read", Calls.Read);
        Wrap("write", Calls.Write);
        Wrap("ftruncate", Calls.Ftruncate);
        Wrap("fchown", Calls.Fchown);
        Wrap("fchmod", Calls.Fchmod);
        Wrap("fsync", Calls.Fsync);
        Wrap("rename", Calls.Rename);
        Wrap("unlink", Calls.Unlink);
        WrapClose();
    }
    FailingCalls(const FailingCalls &) = delete;
    FailingCalls &operator=(const FailingCalls &) = delete;

    SystemCalls Calls;

    /// The name of the first call that failed, empty while none did.
    const std::string &Failed() const { return Failed_; }

  private:
    bool FailsNow(const std::string &name) {
        const int number = Count_++;
        if (number != FailAt_ && (Failing_ == Failing::Once || number < FailAt_))
            return false;
        if (Failed_.empty())
            Failed_ = name;
        errno = Error_;
        return true;
    }

    template <typename Result, typename... Arguments>
    void Wrap(const std::string &name, std::function<Result(Arguments...)> &call) {
        call = [this, name, real = std::move(call)](Arguments... arguments) -> Result {
            return FailsNow(name) ? Result{-1} : real(arguments...);
        };
    }

    /// A close that fails has closed the descriptor all the same.
    void WrapClose() {
        Calls.Close = [this](int descriptor) {
            const int result = ::close(descriptor);
            return FailsNow("close") ? -1 : result;
        };
    }

    const int FailAt_;
    const int Error_;
    const Failing Failing_;
    int Count_ = 0;
    std::string Failed_;
};

} // namespace Quillbox
