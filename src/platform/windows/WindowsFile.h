// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileSystem.h"
#include "platform/windows/WindowsApi.h"

namespace Quillbox {

class WindowsFile : public CheckedFile {
  public:
    /// `access` and `creation` as CreateFileW takes them.
    WindowsFile(const std::filesystem::path &name, DWORD access, DWORD creation);
    ~WindowsFile() override;
    WindowsFile(const WindowsFile &) = delete;
    WindowsFile &operator=(const WindowsFile &) = delete;

    int Error() const override { return static_cast<int>(Error_); }
    std::size_t Size() override;
    std::string_view Read(char *buffer, std::size_t capacity) override;
    bool Write(std::string_view bytes) override;
    bool CutAfterWritten() override;
    void MakeLike(const std::filesystem::path &model) override;
    bool Sync() override;
    bool Close() override;

    /// Empty after an error.
    BY_HANDLE_FILE_INFORMATION Information();
    /// Where the file really is, with all links followed.
    std::filesystem::path FinalName();
    /// What is no file on a disk is an error from now on.
    void RequireFileOnDisk();

  private:
    bool Check(BOOL succeeded);
    void Fail(DWORD error);

    HANDLE Handle_;
    DWORD Error_ = 0;
};

} // namespace Quillbox
