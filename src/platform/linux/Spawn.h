// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <sys/types.h>

#include <optional>

namespace Quillbox {

/// Whose session a child belongs to: one in a session of its own lives on when ours ends.
enum class ChildSession { Ours, ItsOwn };

struct SpawnResult {
    int Error;     ///< 0 or the system's error number
    pid_t Process; ///< without meaning after an error
};

/// Starts a command line in the current folder with the current environment, without standard
/// input and standard error. Without `standardOutput` its output is lost too.
SpawnResult Spawn(const QString &commandLine, std::optional<int> standardOutput,
                  ChildSession session);

/// Returns when the child has ended, and leaves nothing of it behind.
void WaitForChild(pid_t process);
/// Returns at once; nothing is left of the child when it ends.
void WaitForChildInBackground(pid_t process);

} // namespace Quillbox
