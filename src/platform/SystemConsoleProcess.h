// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/ConsoleProcess.h"

#include <set>

namespace Quillbox {

/// Of each system: its pipes and processes. A handle that is closed a second time is left alone,
/// since its number may belong to something else by then. QProcess reads while the process runs;
/// here nothing reads before its end, and what the pipe does not hold stops the process.
class SystemConsoleProcess : public ConsoleProcess {
  public:
    std::optional<PipeHandles> CreatePipe(std::size_t size) override;
    std::optional<ProcessHandles> StartProcess(const QString &commandLine,
                                               SystemHandle standardOutput) override;
    void WaitForProcess(SystemHandle process) override;
    std::optional<QByteArray> ReadFile(SystemHandle readEnd, std::size_t capacity) override;
    void CloseHandle(SystemHandle handle) override;
    int LastError() const override { return LastError_; }

  private:
    std::set<SystemHandle> Open_;
    int LastError_ = 0;
};

} // namespace Quillbox
