// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Version.h"

#include <QString>

namespace Quillbox {

/// The open project. An empty `File` means that no project is open; the other fields may then still
/// hold what the last one left.
struct Project {
    QString File; ///< full path of the project file
    QString Title;
    QString Author;
    QString MainSource;   ///< as stored; a relative path counts from the current folder
    QString OtherSources; ///< packed, see PackOtherSources
    QString ToDoList;     ///< packed, see PackToDoList
    /// Something changed since the last saving. Not stored, and only a saving clears it: after
    /// changes were dropped, the next project is asked about when it closes.
    bool Modified = false;
};

/// What the file choosers for projects offer.
inline const QString ProjectFilter = QStringLiteral("Proyectos de Fenix (*.fp)|*.fp");

/// The main window's caption while no project is open.
inline const QString NoProjectCaption =
    QStringLiteral("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>");

/// The main window's caption while a project is open.
QString ProjectCaption(const QString &title);

} // namespace Quillbox
