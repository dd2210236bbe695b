// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Files.h"

namespace Quillbox {

/// The files of the disk, on every system.
class SystemFiles : public Files {
  public:
    bool CanRead(const QString &path) override;
    std::optional<QByteArray> Read(const QString &path) override;
    /// The file holds all old or all new bytes afterwards (see ReplaceContent).
    bool Write(const QString &path, const QByteArray &content) override;
};

} // namespace Quillbox
