// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// Running the active document with F5. The run notice stands in for the program that runs games.
class RunGame : public ProgramTest {
  protected:
    bool RunDocument(const QByteArray &source) {
        Game_ = Write(QStringLiteral("juego.prg"), source);
        return Start() && Open(Game_) && Press({QStringLiteral("F5")});
    }

    /// The process of the run notice once its window is there.
    qint64 Notice() {
        Person_.WaitForWindow(NoticeTitle);
        const qint64 process = Person_.ProcessOf(NoticeTitle);
        return ProgramOf(process) == QStringLiteral("FXI.exe") ? process : 0;
    }

    QString Game_;
};

} // namespace

TEST_F(RunGame, StartsTheProgramThatRunsGamesAndLeavesNoDeadChild) {
    ASSERT_TRUE(RunDocument("Cls\r\n"));
    const qint64 notice = Notice();
    ASSERT_NE(notice, 0);
    EXPECT_TRUE(ChildrenOf(Run_.ProcessId()).contains(notice));

    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(WaitUntil([&] { return StateOf(notice).isEmpty(); }));
    EXPECT_TRUE(ChildrenOf(Run_.ProcessId()).isEmpty());
    EXPECT_TRUE(Leaves());
}

TEST_F(RunGame, GoesOnWhileTheGameRuns) {
    ASSERT_TRUE(RunDocument("Cls\r\n"));
    ASSERT_NE(Notice(), 0);
    ASSERT_TRUE(Press({}));
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("xCls\r\n", Game_), "xCls\r\n");
    EXPECT_TRUE(Leaves());
    // The game outlives the editor.
    EXPECT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
}

TEST_F(RunGame, StartsNothingAfterAnError) {
    ASSERT_TRUE(RunDocument("If x\r\n"));
    ASSERT_NE(Person_.WaitForWindow(NoticeTitle), 0);
    EXPECT_EQ(Person_.ProcessOf(NoticeTitle), Run_.ProcessId());
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(NoticeTitle));
    EXPECT_TRUE(OpenNew()); // once the command has ended
    EXPECT_TRUE(ChildrenOf(Run_.ProcessId()).isEmpty());
    EXPECT_FALSE(Person_.IsWindowThere(NoticeTitle));
}

TEST_F(RunGame, PassesTheCompiledFileBesideTheSource) {
    ASSERT_TRUE(QFile::remove(ProgramFile(QStringLiteral("FXI.exe"))));
    UseCompiler("printf 'bien\\r\\n'\n");
    const QString arguments = PersonsFile(QStringLiteral("argumentos"));
    QFile game(ProgramFile(QStringLiteral("FXI.exe")));
    ASSERT_TRUE(game.open(QIODevice::WriteOnly));
    game.write("#!/bin/sh\nprintf '%s|' \"$#\" \"$1\" \"$blitzpath\" >" + arguments.toLatin1());
    game.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    game.close();

    ASSERT_TRUE(RunDocument("Cls\r\n"));

    const QByteArray expected = "1|" + PersonsFile(QStringLiteral("juego.dcb")).toLatin1() +
                                "|C:\\Archivos de programa\\Blitz3D\\|";
    EXPECT_EQ(BytesOnceThey(expected, arguments), expected);
}

TEST_F(RunGame, SavesEveryNamedDocumentFirst) {
    const QString first = Write(QStringLiteral("uno.prg"), "1");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(first));
    Person_.Type(QStringLiteral("x="));
    ASSERT_TRUE(OpenNew());
    Person_.Type(QStringLiteral("nada"));
    const QString second = Write(QStringLiteral("dos.prg"), "2");
    ASSERT_TRUE(Open(second));
    Person_.Type(QStringLiteral("y="));

    ASSERT_TRUE(Press({QStringLiteral("F5")}));

    ASSERT_NE(Notice(), 0);
    EXPECT_EQ(BytesOf(first), "x=1");
    EXPECT_EQ(BytesOf(second), "y=2");
    EXPECT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
}

TEST_F(RunGame, WithoutTheProgramThatRunsGamesIsARunTimeErrorAndTheProgramGoesOn) {
    ASSERT_TRUE(QFile::remove(ProgramFile(QStringLiteral("FXI.exe"))));
    ASSERT_TRUE(RunDocument("Cls\r\n"));
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 53 en tiempo de ejecución:\n\n"
                             "No se ha encontrado el archivo."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(ClosesAtOnce(Game_));
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
