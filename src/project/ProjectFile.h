// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/PrivateProfile.h"

#include <span>

namespace Quillbox {

struct Project;

/// One key of a project file's only section.
struct ProjectKey {
    const char *Name;
    QString Project::*Field;
    const char *Default; ///< Spanish, UTF-8; for a key that is missing
};

/// The keys in the order in which they are read and written.
std::span<const ProjectKey> ProjectKeys();

/// Reads every field that the file `project.File` holds, each cut to 5119 characters. What is
/// missing, a whole file as well, takes its default.
void ReadProject(Project &project, PrivateProfile &profile);

/// Writes the fields as they are, without quotes or escapes, to the file `project.File`, all in one
/// go. What else the file holds stays. Nobody learns of a failure; the file then has its old bytes.
void WriteProject(const Project &project, PrivateProfile &profile);

} // namespace Quillbox
