// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileSystem.h"
#include "platform/linux/SystemCalls.h"

namespace Quillbox {

class LinuxFile : public CheckedFile {
  public:
    LinuxFile(const SystemCalls &calls, const std::filesystem::path &name, int flags,
              mode_t mode = 0);
    ~LinuxFile() override;
    LinuxFile(const LinuxFile &) = delete;
    LinuxFile &operator=(const LinuxFile &) = delete;

    int Error() const override { return Error_; }
    std::size_t Size() override { return static_cast<std::size_t>(Status().st_size); }
    std::string_view Read(char *buffer, std::size_t capacity) override;
    bool Write(std::string_view bytes) override;
    bool CutAfterWritten() override;
    void MakeLike(const std::filesystem::path &model) override;
    bool Sync() override;
    bool Close() override;

    /// What is no regular file is an error from now on.
    void RequireRegularFile();

  private:
    /// Repeats `call` as long as signals interrupt it; a negative result becomes the error.
    template <typename Call>
    auto Checked(Call call);
    struct stat Status();
    /// False when the system does not permit the change, which counts as no error.
    bool TrySetOwner(uid_t user, gid_t group);

    const SystemCalls &Calls_;
    int Descriptor_ = -1;
    int Error_ = 0;
    off_t Written_ = 0;
};

} // namespace Quillbox
