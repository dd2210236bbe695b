// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Commands.h"

#include <QString>

#include <functional>
#include <vector>

namespace Quillbox {

struct DocumentRegistry;
struct Project;

/// The commands that have a tool button, in the order of their buttons.
std::vector<Command> ToolbarCommands();

/// Whether a separator stands between two neighbours.
bool AreInDifferentGroups(const Command &left, const Command &right);

/// Runs the command of a tool button.
class ToolbarDispatch {
  public:
    using Runner = std::function<void(const Command &)>;
    ToolbarDispatch(const DocumentRegistry &registry, const Project &project, Runner run);

    /// A click on the button with exactly this tooltip; a tooltip that no button has does nothing.
    void tbEstandar_ButtonClick(const QString &tooltip);

  private:
    bool Holds(Needs needs) const;

    const DocumentRegistry &Registry_;
    const Project &Project_;
    Runner Run_;
};

} // namespace Quillbox
