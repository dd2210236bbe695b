// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileSystem.h"

#include <utility>

namespace Quillbox {

/// Closes and removes a file when it goes out of scope, unless it has been kept.
class RemovedFile {
  public:
    RemovedFile(const FileSystem &system, CheckedFile &file, std::filesystem::path name)
        : System_(system)
        , File_(file)
        , Name_(std::move(name)) {}
    ~RemovedFile() {
        if (Kept_)
            return;
        File_.Close();
        System_.Remove(Name_);
    }
    RemovedFile(const RemovedFile &) = delete;
    RemovedFile &operator=(const RemovedFile &) = delete;

    void Keep() { Kept_ = true; }

  private:
    const FileSystem &System_;
    CheckedFile &File_;
    std::filesystem::path Name_;
    bool Kept_ = false;
};

/// Writes `target`, which exists, anew, without losing what other names of the same file show.
std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce,
                                      const FileSystem &system);

} // namespace Quillbox
