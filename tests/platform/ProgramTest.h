// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TestFiles.h"

#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace Quillbox {

/// Tests that start real programs, written as shell scripts into the test's folder.
class ProgramTest : public FolderTest {
  protected:
    ~ProgramTest() override { qputenv("PATH", SearchPath_); }

    /// The path of a script; missing folders are made.
    QString MakeScript(const QString &name, const QByteArray &commands) const {
        const QString path = PathOf(name);
        QDir().mkpath(QFileInfo(path).path());
        WriteTestFile(path, "#!/bin/sh\n" + commands + '\n');
        SetMode(path, 0755);
        return path;
    }

    /// A program for Windows as far as its first bytes tell.
    QString MakeWindowsProgram(const QString &name) const {
        QDir().mkpath(QFileInfo(PathOf(name)).path());
        WriteTestFile(PathOf(name), QByteArray("MZ\x90\0", 4));
        SetMode(PathOf(name), 0644);
        return PathOf(name);
    }

    void SearchOnlyIn(const QString &folder) const { qputenv("PATH", PathOf(folder).toUtf8()); }
    void SearchFirstIn(const QString &folder) const {
        qputenv("PATH", PathOf(folder).toUtf8() + ':' + SearchPath_);
    }

    /// True when this process has no child, dead or alive. Looks without waiting for the child,
    /// which would remove what it looks for.
    static bool HasNoChild() {
        siginfo_t information{};
        return ::waitid(P_ALL, 0, &information, WEXITED | WNOHANG | WNOWAIT) < 0 && errno == ECHILD;
    }

    template <typename Condition>
    static bool BecomesTrue(Condition condition) {
        for (int i = 0; i < 6000 && !condition(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return condition();
    }

  private:
    const QByteArray SearchPath_ = qgetenv("PATH");
};

} // namespace Quillbox
