// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FailingCalls.h"
#include "platform/TestFiles.h"

#include <algorithm>
#include <set>
#include <vector>

namespace Quillbox {

namespace {

/// Saves with each call failing in its turn, until a save comes to its end without a failure.
class FailingSaves : public FolderTest {
  protected:
    const QByteArray Old = Pattern(3000);
    const QByteArray New = Pattern(5500).replace('\x07', "siete");

    QByteArray Content() const {
        return QFile::exists(PathOf("a.prg")) ? ReadTestFile(PathOf("a.prg")) : QByteArray();
    }

    /// The calls that have failed at some time.
    template <typename Prepare, typename Check>
    std::set<std::string> FailEachCall(int error, const QString &name, Prepare prepare,
                                       Check check) {
        std::set<std::string> failed;
        for (int failAt = 0;; ++failAt) {
            prepare();
            FailingCalls failing(failAt, error);
            const auto result =
                ReplaceContent(PathOf(name), ProducerOf(New), LinuxFileSystem(failing.Calls));
            SCOPED_TRACE(failing.Failed() + ", call " + std::to_string(failAt));
            check(result, failing.Failed());
            if (failing.Failed().empty())
                return failed;
            failed.insert(failing.Failed());
        }
    }

    /// Files seem to be programs of another user and group that run as their owner.
    static SystemCalls WithAnotherOwner() {
        SystemCalls calls;
        calls.Lstat = [](const char *name, struct stat *status) {
            const int result = ::lstat(name, status);
            status->st_uid = 1234;
            status->st_gid = 5678;
            status->st_mode |= S_ISUID;
            return result;
        };
        return calls;
    }

    void Clear() const {
        for (const QString &name : Entries())
            QFile::remove(PathOf(name));
    }
};

const std::set<std::string> CallsOfANewFile = {"lstat", "stat",  "access", "open",
                                               "write", "fsync", "close",  "rename"};

} // namespace

TEST_F(FailingSaves, LeavesNothingOrTheWholeNewFileWhenCreating) {
    const auto failed = FailEachCall(
        EIO, "a.prg", [this] { Clear(); },
        [this](const std::optional<FileError> &error, const std::string &call) {
            EXPECT_EQ(error.has_value(), !call.empty());
            EXPECT_TRUE(Content().isEmpty() || Content() == New);
            EXPECT_TRUE(error || Content() == New);
            EXPECT_TRUE(Entries().isEmpty() || Entries() == QStringList("a.prg"));
        });
    EXPECT_EQ(failed, CallsOfANewFile);
}

TEST_F(FailingSaves, LeavesTheOldOrTheNewFileWhenReplacing) {
    const auto prepare = [this] {
        Clear();
        WriteTestFile(PathOf("a.prg"), Old);
        SetMode(PathOf("a.prg"), 0640);
    };
    const auto failed =
        FailEachCall(EIO, "a.prg", prepare,
                     [this](const std::optional<FileError> &error, const std::string &call) {
                         EXPECT_EQ(error.has_value(), !call.empty());
                         EXPECT_TRUE(Content() == Old || Content() == New);
                         EXPECT_TRUE(error || Content() == New);
                         EXPECT_EQ(ModeOf(PathOf("a.prg")), 0640U);
                         EXPECT_EQ(Entries(), QStringList("a.prg"));
                     });
    std::set<std::string> expected = CallsOfANewFile;
    expected.insert({"fstat", "fchmod"});
    EXPECT_EQ(failed, expected);
}

TEST_F(FailingSaves, LeavesTheOldOrTheNewFileBehindALink) {
    const auto prepare = [this] {
        Clear();
        WriteTestFile(PathOf("a.prg"), Old);
        ASSERT_TRUE(QFile::link("a.prg", PathOf("enlace.prg")));
    };
    const auto failed =
        FailEachCall(EIO, "enlace.prg", prepare,
                     [this](const std::optional<FileError> &error, const std::string &call) {
                         EXPECT_EQ(error.has_value(), !call.empty());
                         EXPECT_TRUE(Content() == Old || Content() == New);
                         EXPECT_EQ(Entries(), QStringList({"a.prg", "enlace.prg"}));
                     });
    EXPECT_TRUE(failed.contains("readlink"));
}

TEST_F(FailingSaves, RestoresAFileWithHardLinks) {
    const auto prepare = [this] {
        Clear();
        WriteTestFile(PathOf("a.prg"), Old);
        ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
    };
    const auto check = [this](const std::optional<FileError> &error, const std::string &call) {
        EXPECT_EQ(Content(), error ? Old : New);
        EXPECT_EQ(ReadTestFile(PathOf("b.prg")), Content());
        if (call == "unlink") {
            EXPECT_FALSE(error) << "the new content is complete";
            EXPECT_EQ(ReadTestFile(PathOf("a.prg.antes-de-guardar")), Old);
        } else {
            EXPECT_EQ(error.has_value(), !call.empty());
            EXPECT_EQ(Entries(), QStringList({"a.prg", "b.prg"}));
        }
    };
    const auto failed = FailEachCall(EIO, "a.prg", prepare, check);
    const std::set<std::string> expected = {"lstat", "stat",      "access", "open",
                                            "read",  "write",     "fstat",  "fchmod",
                                            "fsync", "ftruncate", "close",  "unlink"};
    EXPECT_EQ(failed, expected);
}

TEST_F(FailingSaves, KeepsTheCopyAndSaysWhereWhenRestoringFailsToo) {
    const QString copy = PathOf("a.prg.antes-de-guardar");
    int damaged = 0;
    for (int failAt = 0;; ++failAt) {
        Clear();
        WriteTestFile(PathOf("a.prg"), Old);
        ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
        FailingCalls failing(failAt, EIO, Failing::FromThenOn);
        const auto error =
            ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(failing.Calls));
        SCOPED_TRACE(failing.Failed() + ", call " + std::to_string(failAt));
        if (!error)
            break;
        if (Content() != Old) {
            ++damaged;
            EXPECT_EQ(ReadTestFile(copy), Old);
            EXPECT_EQ(error->Text,
                      "El disco ha fallado al escribir. El contenido anterior está en «" + copy +
                          "».");
        }
    }
    EXPECT_GT(damaged, 3);
    EXPECT_EQ(Content(), New);
}

TEST_F(FailingSaves, SaysThatTheDiskIsFull) {
    WriteTestFile(PathOf("a.prg"), Old);
    SystemCalls calls;
    calls.Write = [](int, const void *, std::size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    const auto error = ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Code, ENOSPC);
    EXPECT_EQ(error->Text, "El disco está lleno.");
    EXPECT_EQ(Content(), Old);
    EXPECT_EQ(Entries(), QStringList("a.prg"));
}

TEST_F(FailingSaves, TellsTheProducerThatWritingHasFailed) {
    SystemCalls calls;
    calls.Write = [](int, const void *, std::size_t) -> ssize_t {
        errno = ENOSPC;
        return -1;
    };
    std::vector<bool> answers;
    ReplaceContent(
        PathOf("a.prg"),
        [&answers](const ByteSink &sink) {
            answers = {sink("uno"), sink("dos"), sink("")};
        },
        LinuxFileSystem(calls));
    EXPECT_EQ(answers, std::vector<bool>(3, false));
}

TEST_F(FailingSaves, GoesOnAfterShortWrites) {
    SystemCalls calls;
    calls.Write = [](int descriptor, const void *bytes, std::size_t size) {
        return ::write(descriptor, bytes, std::min<std::size_t>(size, 7));
    };
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
    EXPECT_EQ(Content(), New);
}

TEST_F(FailingSaves, TakesAWriteOfNothingForAFailure) {
    SystemCalls calls;
    calls.Write = [](int, const void *, std::size_t) { return ssize_t{0}; };
    EXPECT_TRUE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
    EXPECT_EQ(Entries(), QStringList());
}

TEST_F(FailingSaves, GoesOnAfterInterruptions) {
    const std::set<std::string> interruptible = {"open",  "read",      "write",
                                                 "fsync", "ftruncate", "close"};
    for (const bool linked : {false, true}) {
        const auto prepare = [this, linked] {
            Clear();
            WriteTestFile(PathOf("a.prg"), Old);
            if (linked) {
                ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
            }
        };
        const auto check = [&](const std::optional<FileError> &error, const std::string &call) {
            if (interruptible.contains(call)) {
                EXPECT_FALSE(error);
                EXPECT_EQ(Content(), New);
            }
        };
        EXPECT_TRUE(FailEachCall(EINTR, "a.prg", prepare, check).contains("write"));
    }
}

TEST_F(FailingSaves, SavesInAFolderThatCannotBeListed) {
    WriteTestFile(PathOf("a.prg"), Old);
    SystemCalls calls;
    calls.Open = [](const char *name, int flags, mode_t mode) {
        errno = EACCES;
        return (flags & O_DIRECTORY) != 0 ? -1 : ::open(name, flags, mode);
    };
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
    EXPECT_EQ(Content(), New);
}

TEST_F(FailingSaves, KeepsOwnerAndGroupOfTheOldFile) {
    WriteTestFile(PathOf("a.prg"), Old);
    SetMode(PathOf("a.prg"), 0755);
    SystemCalls calls = WithAnotherOwner();
    std::vector<std::pair<uid_t, gid_t>> owners;
    calls.Fchown = [&owners](int, uid_t user, gid_t group) {
        owners.emplace_back(user, group);
        return 0;
    };
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
    EXPECT_EQ(owners, (std::vector<std::pair<uid_t, gid_t>>{{1234, 5678}}));
    EXPECT_EQ(ModeOf(PathOf("a.prg")), 04755U);
}

TEST_F(FailingSaves, KeepsTheGroupAloneWhenTheOwnerMayNotBeGivenAway) {
    WriteTestFile(PathOf("a.prg"), Old);
    SetMode(PathOf("a.prg"), 0755);
    SystemCalls calls = WithAnotherOwner();
    std::vector<std::pair<uid_t, gid_t>> owners;
    calls.Fchown = [&owners](int, uid_t user, gid_t group) {
        owners.emplace_back(user, group);
        errno = EPERM;
        return -1;
    };
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
    const std::vector<std::pair<uid_t, gid_t>> expected = {{1234, 5678},
                                                           {static_cast<uid_t>(-1), 5678}};
    EXPECT_EQ(owners, expected);
    EXPECT_EQ(ModeOf(PathOf("a.prg")), 0755U) << "no set-user bit for another owner";
    EXPECT_EQ(Content(), New);
}

TEST_F(FailingSaves, FlushesTheContentBeforeTheNameShowsItAndThenTheName) {
    for (const bool linked : {false, true}) {
        Clear();
        WriteTestFile(PathOf("a.prg"), Old);
        if (linked) {
            ASSERT_EQ(::link(PathOf("a.prg").toUtf8(), PathOf("b.prg").toUtf8()), 0);
        }
        SystemCalls calls;
        QStringList steps;
        calls.Fsync = [&steps](int descriptor) {
            struct stat status {};
            EXPECT_EQ(::fstat(descriptor, &status), 0);
            steps += S_ISDIR(status.st_mode) ? "flush folder" : "flush file";
            return ::fsync(descriptor);
        };
        calls.Rename = [&steps](const char *from, const char *to) {
            steps += "rename";
            return ::rename(from, to);
        };
        calls.Unlink = [&steps](const char *name) {
            steps += "remove copy";
            return ::unlink(name);
        };
        EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
        const QStringList inPlace = {"flush file", "flush folder", "flush file", "remove copy"};
        const QStringList beside = {"flush file", "rename", "flush folder"};
        EXPECT_EQ(steps, linked ? inPlace : beside);
    }
}

TEST_F(FailingSaves, WritesUnderANameThatNobodyElseCanRead) {
    WriteTestFile(PathOf("a.prg"), Old);
    SetMode(PathOf("a.prg"), 0644);
    SystemCalls calls;
    calls.Write = [this](int descriptor, const void *bytes, std::size_t size) {
        for (const QString &name : Entries()) {
            if (name != "a.prg") {
                EXPECT_TRUE(name.startsWith('.'));
                EXPECT_EQ(ModeOf(PathOf(name)), 0600U);
            }
        }
        EXPECT_EQ(Entries().size(), 2);
        return ::write(descriptor, bytes, size);
    };
    EXPECT_FALSE(ReplaceContent(PathOf("a.prg"), ProducerOf(New), LinuxFileSystem(calls)));
}

} // namespace Quillbox
