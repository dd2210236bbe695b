// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Menus.h"

#include <QString>

#include <span>

namespace Quillbox {

struct DocumentRegistry;
struct Project;

/// When a click on a tool button does anything.
enum class ToolButtonCondition { Always, ProjectOpen, HelpPageActive };

/// One button of tbEstandar, known by its tooltip. Most buttons run a menu item's command; the
/// others have one of their own.
struct ToolButton {
    const char *Tooltip; ///< Spanish, UTF-8
    const char *Command; ///< name in the command table
    const char *Icon;    ///< name of the picture, without folder and extension
    ToolButtonCondition Condition = ToolButtonCondition::Always;
};

/// The buttons in their order; a button with an empty tooltip is a separator.
std::span<const ToolButton> ToolButtons();

/// Runs the command of a tool button.
class ToolbarDispatch {
  public:
    ToolbarDispatch(const CommandTable &commands, const DocumentRegistry &registry,
                    const Project &project);

    /// A click on the button with exactly this tooltip; a tooltip that is in no table, or whose
    /// command does not exist yet, does nothing.
    void tbEstandar_ButtonClick(const QString &tooltip);

  private:
    bool Holds(ToolButtonCondition condition) const;

    const CommandTable &Commands_;
    const DocumentRegistry &Registry_;
    const Project &Project_;
};

} // namespace Quillbox
