// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

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

    /// Neither a key nor the close box changes anything for three seconds.
    bool IsFrozen() {
        Person_.Press({QStringLiteral("ctrl+n"), QStringLiteral("alt+F4")});
        return !WaitUntil([this] { return !Run_.IsRunning() || !Shows(Game_) || ShowsUntitled(); },
                          3000);
    }

    bool ShowsUntitled() { return Person_.IsWindowThere(QStringLiteral("< sin título >")); }

    QString Marker() const { return PersonsFile(QStringLiteral("marca")); }

    QString Game_;
};

} // namespace

TEST_F(SilentCompiler, ThatWritesNothingFreezesTheProgram) {
    UseCompiler("echo fin >" + Marker().toLatin1() + "\n");
    ASSERT_TRUE(CheckDocument());
    ASSERT_EQ(BytesOnceThey("fin\n", Marker()), "fin\n");
    ASSERT_TRUE(WaitUntil([this] { return ChildrenOf(Run_.ProcessId()).isEmpty(); }));

    EXPECT_TRUE(IsFrozen());
    EXPECT_EQ(StateOf(Run_.ProcessId()), QStringLiteral("S"));
    EXPECT_EQ(BytesOf(ProgramFile(QStringLiteral("CLog.tmp"))), "");
}

TEST_F(SilentCompiler, ThatWritesMoreThanThePipeHoldsFreezesTheProgram) {
    UseCompiler("echo inicio >" + Marker().toLatin1() + "\nexec head -c 2097152 /dev/zero\n");
    ASSERT_TRUE(CheckDocument());
    ASSERT_EQ(BytesOnceThey("inicio\n", Marker()), "inicio\n");

    EXPECT_TRUE(IsFrozen());
    const QList<qint64> children = ChildrenOf(Run_.ProcessId());
    ASSERT_EQ(children.size(), 1);
    EXPECT_EQ(ProgramOf(children.first()), QStringLiteral("head"));
    EXPECT_EQ(StateOf(children.first()), QStringLiteral("S"));
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
