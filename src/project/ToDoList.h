// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/PackedLists.h"

#include <optional>

namespace Quillbox {

class Dialogs;
struct Project;

/// What frmToDoList shows.
struct ToDoEntries {
    std::vector<Task> Tasks;
    std::optional<int> Current; ///< entry from 0 on which the keys act; none in an empty list
};

/// What frmToDoList decides.
class ToDoList {
  public:
    ToDoList(Project &project, Dialogs &dialogs);

    /// Every done task becomes the current one while the list fills, so the last of them stays it;
    /// without one it is the first task.
    ToDoEntries Form_Load() const;
    /// Packs what the window shows when it closes. A changed mark alone does not count as a
    /// modification, so that nobody is asked about it.
    void Form_Unload(const std::vector<Task> &tasks);
    /// The description to add as the last task, not done; empty when there is none to add.
    std::optional<QString> cmdAñadir_Click();
    /// Asks; true when the current entry is to be removed. An empty list does not ask.
    bool cmdBorrar_Click(std::optional<int> current);

  private:
    Project &Project_;
    Dialogs &Dialogs_;
};

} // namespace Quillbox
