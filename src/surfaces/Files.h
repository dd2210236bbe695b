// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Quillbox {

/// Small files of the program itself. Paths are as stored or typed (see SystemPath).
class Files {
  public:
    virtual ~Files() = default;

    /// True when the path names a file (no folder) that can be opened for reading.
    virtual bool CanRead(const QString &path) = 0;
    /// The whole content; empty when it cannot be read.
    virtual std::optional<QByteArray> Read(const QString &path) = 0;
    /// Creates the file or replaces its content; false when that fails.
    virtual bool Write(const QString &path, const QByteArray &content) = 0;
};

} // namespace Quillbox
