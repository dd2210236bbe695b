// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class ConsoleProcess;
class EventLoop;

/// Runs a command line as a hidden console process, waits until it has ended, however long that
/// takes, and returns what it wrote to its standard output, at most 30720 bytes. A failure is only
/// told by the returned text: "Error: CreatePipe failed. ", "Error: CreateProcess failed. " or
/// "Error: ReadFile failed. ", each followed by the system's error number.
///
/// This side keeps the pipe's write end open while it waits and reads once after the end. So a
/// program that writes nothing, or more than the pipe holds, keeps the call from ever returning.
QString ExecCmd(const QString &commandLine, ConsoleProcess &console, EventLoop &events);

} // namespace Quillbox
