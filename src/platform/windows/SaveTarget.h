// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SaveFile.h"
#include "platform/windows/CheckedFile.h"

#include <string>
#include <variant>

namespace Quillbox {

/// The place where a save has to put its bytes.
struct SaveTarget {
    std::wstring Name; ///< where the symbolic links end
    bool Exists = false;
    bool HasOtherNames = false; ///< hard links, which a move over `Name` would tear apart
    DWORD Attributes = 0;

    /// With a separator at its end; empty for the current folder.
    std::wstring Folder() const { return Name.substr(0, Name.find_last_of(L"\\/:") + 1); }
};

/// Follows the links of `path` and makes sure that the file there may be written.
std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path);

/// Closes and removes a file when it goes out of scope, unless it has been kept.
class RemovedFile {
  public:
    RemovedFile(std::wstring name, CheckedFile &file);
    ~RemovedFile();
    RemovedFile(const RemovedFile &) = delete;
    RemovedFile &operator=(const RemovedFile &) = delete;

    void Keep() { Kept_ = true; }

  private:
    std::wstring Name_;
    CheckedFile &File_;
    bool Kept_ = false;
};

/// Writes `target` anew, without losing what other names of the same file show.
std::optional<FileError> WriteInPlace(const SaveTarget &target, const ByteProducer &produce);

} // namespace Quillbox
