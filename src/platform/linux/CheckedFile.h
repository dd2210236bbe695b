// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/SystemCalls.h"

#include <QByteArray>

#include <string_view>

namespace Quillbox {

/// An open file that remembers the first error; whatever is asked of it afterwards does nothing. So
/// a whole sequence of steps is written down plainly and checked once, by `Error`.
class CheckedFile {
  public:
    CheckedFile(const SystemCalls &calls, const QByteArray &name, int flags, mode_t mode = 0);
    ~CheckedFile();
    CheckedFile(const CheckedFile &) = delete;
    CheckedFile &operator=(const CheckedFile &) = delete;

    /// The system's number of the first error, 0 when there was none.
    int Error() const { return Error_; }
    struct stat Status();
    /// The next bytes, read into `buffer`; empty at the end of the file and after an error.
    std::string_view Read(char *buffer, std::size_t capacity);
    bool Write(std::string_view bytes);
    /// Ends the file after what has been written.
    bool CutAfterWritten();
    bool SetMode(mode_t mode);
    /// False when the system does not permit the change, which counts as no error.
    bool TrySetOwner(uid_t user, gid_t group);
    /// Returns when the content has reached the disk.
    bool Sync();
    bool Close();

  private:
    /// Repeats `call` as long as signals interrupt it; a negative result becomes the error.
    template <typename Call>
    auto Checked(Call call);

    const SystemCalls &Calls_;
    int Descriptor_ = -1;
    int Error_ = 0;
    off_t Written_ = 0;
};

} // namespace Quillbox
