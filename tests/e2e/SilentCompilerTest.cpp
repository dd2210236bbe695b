// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <sys/syscall.h>

namespace Quillbox {
namespace {

/// Compilers that the program waits for without end, because it reads once and only when they have
/// ended, and because it holds the pipe's other end itself.
class SilentCompiler : public ProgramTest {
  protected:
    bool CheckDocument() {
        Game_ = Write(QStringLiteral("juego.prg"), "Cls");
        return Start() && Open(Game_) && Press({QStringLiteral("F7")});
    }

    /// The process sleeps at a pipe in this system call.
    static bool SleepsAtPipe(qint64 process, long call) {
        const SystemCall now = SystemCallOf(process);
        return now.Number == call && now.File.startsWith(QStringLiteral("pipe:"));
    }

    /// Neither a key nor the close box wakes the program from the system call in which it sleeps.
    void ExpectFrozenIn(long call) {
        ASSERT_TRUE(WaitUntil([&] { return SystemCallOf(Run_.ProcessId()).Number == call; }));
        Person_.Press({QStringLiteral("ctrl+n"), QStringLiteral("alt+F4")});
        EXPECT_TRUE(Shows(Game_));
        EXPECT_FALSE(Person_.IsWindowThere(Untitled));
        EXPECT_EQ(SystemCallOf(Run_.ProcessId()).Number, call);
    }

    QString Marker() const { return PersonsFile(QStringLiteral("marca")); }

    QString Game_;
};

} // namespace

TEST_F(SilentCompiler, ThatWritesNothingFreezesTheProgram) {
    UseCompiler("echo fin >" + Marker().toLatin1() + "\n");
    ASSERT_TRUE(CheckDocument());
    ASSERT_EQ(BytesOnceThey("fin\n", Marker()), "fin\n");
    ASSERT_TRUE(WaitUntil([this] { return ChildrenOf(Run_.ProcessId()).isEmpty(); }));

    // Nobody is left who could write into the pipe that it reads.
    ASSERT_TRUE(WaitUntil([this] { return SleepsAtPipe(Run_.ProcessId(), SYS_read); }));
    ExpectFrozenIn(SYS_read);
    EXPECT_EQ(BytesOf(ProgramFile(QStringLiteral("CLog.tmp"))), "");
}

TEST_F(SilentCompiler, ThatWritesMoreThanThePipeHoldsFreezesTheProgram) {
    UseCompiler("echo inicio >" + Marker().toLatin1() + "\nexec head -c 2097152 /dev/zero\n");
    ASSERT_TRUE(CheckDocument());
    ASSERT_EQ(BytesOnceThey("inicio\n", Marker()), "inicio\n");

    // Each waits for the other: the compiler for room in the pipe, which only the program empties,
    // and the program for the end of the compiler.
    const QList<qint64> children = ChildrenOf(Run_.ProcessId());
    ASSERT_EQ(children.size(), 1);
    ASSERT_TRUE(WaitUntil([&] { return SleepsAtPipe(children.first(), SYS_write); }));
    EXPECT_EQ(ProgramOf(children.first()), QStringLiteral("head"));
    ExpectFrozenIn(SYS_wait4);
    EXPECT_TRUE(SleepsAtPipe(children.first(), SYS_write));
}

TEST_F(SilentCompiler, ThatFitsIntoThePipeIsCutAtThirtyKilobytes) {
    UseCompiler("head -c 40000 /dev/zero | tr '\\0' x\n");
    ASSERT_TRUE(CheckDocument());
    const QByteArray log = QByteArray(30720, 'x') + "\r\n";
    const QString file = ProgramFile(QStringLiteral("CLog.tmp"));
    EXPECT_EQ(BytesOnceThey(log, file).size(), log.size());
    EXPECT_TRUE(BytesOf(file) == log);
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
