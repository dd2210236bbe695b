// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/Folders.h"

namespace Quillbox {

/// A mounted volume as the system lists it.
struct Mount {
    QString Path;
    QString FileSystem; ///< its type, "ext4"
    QString Label;
};

/// What a person knows as drives: the root, the home folder, then the mounted volumes by their
/// paths. What the system mounts for itself is left out.
std::vector<Drive> DrivesOf(const QString &home, std::vector<Mount> mounts);

} // namespace Quillbox
