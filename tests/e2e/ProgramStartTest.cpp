// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QElapsedTimer>
#include <QFile>

namespace Quillbox {
namespace {

using ProgramStart = ProgramTest;

const QString SplashTitle = QStringLiteral("El equipo de Quillbox");
constexpr int TickMilliseconds = 1500;

} // namespace

TEST_F(ProgramStart, ShowsTheSplashAloneUntilItsFirstTickAndThenTheMainWindowBesideIt) {
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(Run_.Start());
    ASSERT_NE(Person_.WaitForWindow(SplashTitle), 0);
    const bool both = Person_.IsWindowThere(MainTitle);
    EXPECT_TRUE(!both || clock.elapsed() >= TickMilliseconds);

    ASSERT_NE(Person_.WaitForWindow(MainTitle), 0);
    EXPECT_GE(clock.elapsed(), TickMilliseconds);

    ASSERT_TRUE(Person_.WaitForNoWindow(SplashTitle));
    EXPECT_GE(clock.elapsed(), 2 * TickMilliseconds);
    EXPECT_TRUE(Person_.IsWindowThere(MainTitle));
    EXPECT_TRUE(Run_.IsRunning());
}

TEST_F(ProgramStart, LeavesTheHelpPageActiveAndNoProjectOpen) {
    ASSERT_TRUE(Start());
    EXPECT_TRUE(ShowsHelp());
    EXPECT_TRUE(Leaves());
}

TEST_F(ProgramStart, ShowsTheHelpPageOfTheProgramFolder) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ShowsHelp());
    EXPECT_TRUE(Person_.CopyAll().contains(QStringLiteral("Bienvenido a Quillbox")));
}

TEST_F(ProgramStart, WorksInAFolderWithBlanksAndAccents) {
    const QString folder = Place_.filePath(QStringLiteral("Mis juegos de acción"));
    ASSERT_TRUE(QFile::rename(ProgramFile(QString()), folder));
    ProgramRun run(folder);
    ASSERT_TRUE(run.Start());
    ASSERT_TRUE(Press({}));
    const QString example = folder + QStringLiteral("/examples/01_hola.prg");
    ASSERT_TRUE(Open(example));

    ASSERT_TRUE(Press({QStringLiteral("F7")}));
    const QString logFile = folder + QStringLiteral("/CLog.tmp");
    ASSERT_TRUE(WaitUntil([&] { return BytesOf(logFile).endsWith("\r\n\r\n"); }));
    const QByteArray log = BytesOf(logFile);
    EXPECT_TRUE(log.startsWith("Comprobador de estructura: ")) << log.constData();

    ASSERT_TRUE(Press({QStringLiteral("ctrl+q")}));
    ASSERT_TRUE(run.WaitForEnd());
    EXPECT_EQ(run.ExitCode(), 0);
    EXPECT_TRUE(BytesOf(folder + QStringLiteral("/Quillbox.ini")).contains("ShowTypes=1"));
}

TEST_F(ProgramStart, WritesNoSettingsWhenTheSystemEndsTheProgram) {
    const QByteArray before = BytesOf(SettingsFile());
    ASSERT_TRUE(Start());
    Run_.Terminate();
    ASSERT_TRUE(Run_.WaitForEnd());
    EXPECT_EQ(BytesOf(SettingsFile()), before);
}

} // namespace Quillbox
