// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace Quillbox {

/// What the system is asked to execute. `Arguments` begins with the program's own name.
struct Execution {
    QByteArray File;
    QList<QByteArray> Arguments;
};

/// Finds the program of a command line and its arguments. A program for Windows is handed to Wine.
/// Otherwise the system's error number: ENOENT when there is no such program, EACCES when there is
/// only something that cannot be executed, ENOEXEC when Wine is missing. A program of Windows that
/// is not there may be one of the desktop's (see FindDesktopProgram).
std::variant<Execution, int> FindExecution(const QString &commandLine);

/// The first executable file of this name in a folder of PATH.
std::optional<QString> FindOnSearchPath(const QString &name);

} // namespace Quillbox
