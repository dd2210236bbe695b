// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SaveFile.h"

#include <filesystem>
#include <memory>
#include <variant>

namespace Quillbox {

/// An open file that remembers the first error; whatever is asked of it afterwards does nothing. So
/// a whole sequence of steps is written down plainly and checked once, by `Error`. Files are closed
/// when they go.
class CheckedFile {
  public:
    virtual ~CheckedFile() = default;

    /// The system's number of the first error, 0 when there was none.
    virtual int Error() const = 0;
    /// In bytes; 0 after an error.
    virtual std::size_t Size() = 0;
    /// The next bytes, read into `buffer`; empty at the end of the file and after an error.
    virtual std::string_view Read(char *buffer, std::size_t capacity) = 0;
    virtual bool Write(std::string_view bytes) = 0;
    /// Ends the file after what has been written.
    virtual bool CutAfterWritten() = 0;
    /// Takes over owner, permissions and attributes of another file as far as the system lets it.
    virtual void MakeLike(const std::filesystem::path &model) = 0;
    /// Returns when the content has reached the disk.
    virtual bool Sync() = 0;
    virtual bool Close() = 0;
};

/// The place where a save has to put its bytes.
struct SaveTarget {
    std::filesystem::path Name; ///< where the symbolic links end
    bool Exists = false;
    bool HasOtherNames = false; ///< hard links, which a move over `Name` would tear apart
};

enum class FileAccess { Reading, Overwriting };
enum class Readers { OwnerAlone, AsUsual };

/// The calls of a system that reading and safe saving are made of. Errors are the system's numbers,
/// 0 is success; what cannot be opened is a file with an error.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// Opens a file's content. What is no file (a folder, a device, a pipe) is an error, and
    /// opening it waits for nobody.
    virtual std::unique_ptr<CheckedFile> OpenContent(const QString &path) const = 0;
    /// Follows the links of `path` and makes sure that the file there may be written: what is
    /// write-protected, or no file, is refused.
    virtual std::variant<SaveTarget, FileError> FindSaveTarget(const QString &path) const = 0;

    /// A file that is there, from its first byte on. One that is read may be written by others.
    virtual std::unique_ptr<CheckedFile> Open(const std::filesystem::path &name,
                                              FileAccess access) const = 0;
    /// A new file. FileProblem::NameTaken when there is one of that name.
    virtual std::unique_ptr<CheckedFile> Create(const std::filesystem::path &name,
                                                Readers readers) const = 0;
    /// Gives the file `from` the name `to` of the same folder. That name shows either the old file
    /// or the new one at any moment, also after a power cut.
    virtual int MoveOver(const std::filesystem::path &from,
                         const std::filesystem::path &to) const = 0;
    /// Makes new names and moves in the folder of `name` durable.
    virtual int SyncFolderOf(const std::filesystem::path &name) const = 0;
    /// A file that cannot be removed stays.
    virtual void Remove(const std::filesystem::path &name) const = 0;
};

/// Of each system: its own calls.
std::unique_ptr<const FileSystem> MakeFileSystem();

/// As declared in SaveFile.h, with the calls of `system`.
std::optional<FileError> ReplaceContent(const QString &path, const ByteProducer &produce,
                                        const FileSystem &system);
std::optional<FileError> ReadFileBytes(const QString &path, const PieceConsumer &consume,
                                       const FileSystem &system);

} // namespace Quillbox
