// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/WindowsApi.h"

#include <string_view>

namespace Quillbox {

/// An open file that remembers the first error; whatever is asked of it afterwards does nothing. So
/// a whole sequence of steps is written down plainly and checked once, by `Error`.
class CheckedFile {
  public:
    /// `access` and `creation` as CreateFileW takes them.
    CheckedFile(const std::wstring &name, DWORD access, DWORD creation);
    ~CheckedFile();
    CheckedFile(const CheckedFile &) = delete;
    CheckedFile &operator=(const CheckedFile &) = delete;

    /// The system's number of the first error, 0 when there was none.
    int Error() const { return static_cast<int>(Error_); }
    BY_HANDLE_FILE_INFORMATION Information();
    bool IsOnDisk() const { return ::GetFileType(Handle_) == FILE_TYPE_DISK; }
    /// Where the file really is, with all links followed.
    std::wstring FinalName();
    /// The next bytes, read into `buffer`; empty at the end of the file and after an error.
    std::string_view Read(char *buffer, DWORD capacity);
    bool Write(std::string_view bytes);
    /// Ends the file after what has been written.
    bool CutAfterWritten();
    /// Returns when the content has reached the disk.
    bool Sync();
    bool Close();

  private:
    bool Check(BOOL succeeded);

    HANDLE Handle_;
    DWORD Error_ = 0;
};

} // namespace Quillbox
