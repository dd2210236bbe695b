// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemPrograms.h"

#include "base/RuntimeError.h"
#include "platform/linux/DesktopPrograms.h"
#include "platform/linux/Spawn.h"

#include <QFile>

#include <cerrno>

namespace Quillbox {

namespace {

RuntimeError MissingProgram(const QString &commandLine) {
    if (const std::optional<QString> text = MissingDesktopProgram(commandLine))
        return {FileNotFound().Number, *text};
    return FileNotFound();
}

RuntimeError ErrorOfStart(int code, const QString &commandLine) {
    switch (code) {
    case ENOENT:
        return MissingProgram(commandLine);
    case EACCES:
    case EPERM:
        return PermissionDenied();
    default:
        return InvalidArgument();
    }
}

} // namespace

/// The window style is not passed on: here a program and the window manager decide about that.
void SystemPrograms::Start(const QString &commandLine, WindowStyle) {
    const SpawnResult spawned = Spawn(commandLine, std::nullopt, ChildSession::ItsOwn);
    if (spawned.Error != 0)
        throw ErrorOfStart(spawned.Error, commandLine);
    WaitForChildInBackground(spawned.Process);
}

void SystemPrograms::OpenAddress(const QString &address) {
    Start(QStringLiteral("explorer.exe ") + address, WindowStyle::Normal);
}

void SystemPrograms::SetVariable(const QString &name, const QString &value) {
    qputenv(name.toUtf8().constData(), QFile::encodeName(value));
}

} // namespace Quillbox
