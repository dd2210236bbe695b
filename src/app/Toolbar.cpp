// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Toolbar.h"

#include "state/DocumentRegistry.h"
#include "state/Project.h"

#include <algorithm>

namespace Quillbox {

std::vector<Command> ToolbarCommands() {
    std::vector<Command> commands;
    std::ranges::copy_if(Commands(), std::back_inserter(commands), &Command::IsToolButton);
    std::ranges::sort(commands, {}, [](const Command &command) { return command.Button.Place; });
    return commands;
}

bool AreInDifferentGroups(const Command &left, const Command &right) {
    return left.Button.Place / 10 != right.Button.Place / 10;
}

ToolbarDispatch::ToolbarDispatch(const DocumentRegistry &registry, const Project &project,
                                 Runner run)
    : Registry_(registry)
    , Project_(project)
    , Run_(std::move(run)) {}

void ToolbarDispatch::tbEstandar_ButtonClick(const QString &tooltip) {
    for (const Command &command : Commands())
        if (command.IsToolButton() && tooltip == QString::fromUtf8(command.Button.Tooltip) &&
            Holds(command.Enabled.Needs))
            Run_(command);
}

bool ToolbarDispatch::Holds(Needs needs) const {
    switch (needs) {
    case Needs::Project:
        return !Project_.File.isEmpty();
    case Needs::HelpPage:
        return Registry_.CurrentIndex == 0;
    case Needs::Document: // its button is switched
    case Needs::Nothing:
        break;
    }
    return true;
}

} // namespace Quillbox
