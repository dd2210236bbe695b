// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectDisplay.h"

#include "documents/CommandState.h"
#include "state/Project.h"
#include "surfaces/MainWindow.h"

namespace Quillbox {

ProjectDisplay::ProjectDisplay(MainWindow &mainWindow, CommandState &commandState)
    : MainWindow_(mainWindow)
    , CommandState_(commandState) {}

void ProjectDisplay::ShowTitle(const QString &title) {
    MainWindow_.SetCaption(ProjectCaption(title));
}

void ProjectDisplay::EnableMenus() { CommandState_.EnableProjectMenus(true); }

void ProjectDisplay::ShowNone() {
    MainWindow_.SetCaption(NoProjectCaption);
    CommandState_.EnableProjectMenus(false);
}

} // namespace Quillbox
