// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/Spawn.h"

#include "platform/linux/ProgramSearch.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <vector>

namespace Quillbox {

namespace {

/// Which files the child begins with.
class FileActions {
  public:
    explicit FileActions(std::optional<int> standardOutput) {
        posix_spawn_file_actions_init(&Actions_);
        // Standard output comes first: with our own standard files closed, the pipe may have one
        // of the numbers that the others take.
        if (standardOutput)
            posix_spawn_file_actions_adddup2(&Actions_, *standardOutput, STDOUT_FILENO);
        else
            OpenNothing(STDOUT_FILENO, O_WRONLY);
        OpenNothing(STDIN_FILENO, O_RDONLY);
        OpenNothing(STDERR_FILENO, O_WRONLY);
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&Actions_); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    const posix_spawn_file_actions_t *Get() const { return &Actions_; }

  private:
    void OpenNothing(int descriptor, int flags) {
        posix_spawn_file_actions_addopen(&Actions_, descriptor, "/dev/null", flags, 0);
    }

    posix_spawn_file_actions_t Actions_;
};

/// A child begins with the usual answers to signals, whatever this process ignores or blocks.
class SpawnAttributes {
  public:
    explicit SpawnAttributes(ChildSession session) {
        sigset_t affected;
        posix_spawnattr_init(&Attributes_);
        sigfillset(&affected);
        posix_spawnattr_setsigdefault(&Attributes_, &affected);
        sigemptyset(&affected);
        posix_spawnattr_setsigmask(&Attributes_, &affected);
        const int flags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK |
                          (session == ChildSession::ItsOwn ? POSIX_SPAWN_SETSID : 0);
        posix_spawnattr_setflags(&Attributes_, static_cast<short>(flags));
    }
    ~SpawnAttributes() { posix_spawnattr_destroy(&Attributes_); }
    SpawnAttributes(const SpawnAttributes &) = delete;
    SpawnAttributes &operator=(const SpawnAttributes &) = delete;

    const posix_spawnattr_t *Get() const { return &Attributes_; }

  private:
    posix_spawnattr_t Attributes_;
};

} // namespace

SpawnResult Spawn(const QString &commandLine, std::optional<int> standardOutput,
                  ChildSession session) {
    auto found = FindExecution(commandLine);
    if (const int *error = std::get_if<int>(&found))
        return {*error, 0};
    auto &execution = std::get<Execution>(found);
    std::vector<char *> arguments;
    for (QByteArray &argument : execution.Arguments)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);

    SpawnResult result{};
    result.Error = ::posix_spawn(&result.Process, execution.File.constData(),
                                 FileActions(standardOutput).Get(), SpawnAttributes(session).Get(),
                                 arguments.data(), environ);
    return result;
}

void WaitForChild(pid_t process) {
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void WaitForChildInBackground(pid_t process) { std::thread(WaitForChild, process).detach(); }

} // namespace Quillbox
