// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/CommandState.h"

#include "surfaces/EventLoop.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

CommandState::CommandState(MainWindow &mainWindow, EventLoop &events,
                           const SwitchedCommands &commands)
    : MainWindow_(mainWindow)
    , Events_(events)
    , Commands_(commands) {}

void CommandState::UpdateCommandState(bool enabled) {
    EnableCommands(Commands_.WithDocument, enabled);
    for (const QString &tooltip : Commands_.ButtonsWithDocument)
        MainWindow_.EnableToolButtons(tooltip, enabled);
    // Only windows: a document that is being made is counted already but has no window yet.
    Events_.ProcessWindowEvents();
}

void CommandState::EnableWindowMenu() {
    MainWindow_.EnableCommand(QStringLiteral("mnuVentana"), true);
}

void CommandState::EnableProjectMenus(bool enabled) {
    EnableCommands(Commands_.WithProject, enabled);
}

void CommandState::EnableCommands(const QStringList &names, bool enabled) {
    for (const QString &name : names)
        MainWindow_.EnableCommand(name, enabled);
}

} // namespace Quillbox
