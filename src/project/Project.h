// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class MainWindow;

/// The open project. An empty `File` means that no project is open.
struct Project {
    QString File;
};

/// The main window's caption while no project is open.
inline const QString NoProjectCaption =
    QStringLiteral("Quillbox v1.0 - <Proyecto no abierto>");

/// Enables or disables the menu items that need an open project.
void EnableProjectMenus(MainWindow &mainWindow, bool enabled);

} // namespace Quillbox
