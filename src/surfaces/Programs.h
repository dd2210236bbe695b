// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

/// How a started program shows its window, where the platform lets a program say so. All take the
/// focus.
enum class WindowStyle { Normal = 1, Minimized = 2, Maximized = 3 };

/// Programs that are started and not waited for.
class Programs {
  public:
    virtual ~Programs() = default;

    /// Starts a program by its command line; it is never waited for and leaves no zombie behind.
    /// Throws RuntimeError 53 when it is not there and 5 or 70 when it cannot be started. Where
    /// there is no "calc.exe" and no "explorer.exe", they stand for what the desktop has in their
    /// place.
    virtual void Start(const QString &commandLine, WindowStyle style) = 0;
    /// Hands a web or mail address to the person's own program for it; errors as in Start.
    virtual void OpenAddress(const QString &address) = 0;
    /// Sets a variable of this process, which every later child inherits.
    virtual void SetVariable(const QString &name, const QString &value) = 0;
};

} // namespace Quillbox
