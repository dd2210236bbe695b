// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/modExecCMD.h"

#include "fakes/FakeSystem.h"
#include "fakes/TestRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace Quillbox {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class RunningACommand : public testing::Test {
  protected:
    QString Run() { return ExecCmd(QStringLiteral("\"C:\\f x\\fxc.exe\" a.prg"), Console, Events); }

    CallLog Log;
    FakeConsole Console{Log};
    FakeEventLoop Events{Log};
};

const std::string Pump = "events.ProcessPendingEvents";

TEST_F(RunningACommand, TakesItsStepsInOrderWithPumpsBetweenThem) {
    Run();
    EXPECT_THAT(Log.Calls(),
                ElementsAre(Pump,                                                      //
                            "console.CreatePipe 1048576", Pump,                        //
                            Pump,                                                      //
                            "console.StartProcess \"C:\\f x\\fxc.exe\" a.prg 4", Pump, //
                            Pump, "console.WaitForProcess 1", Pump,                    //
                            "console.ReadFile 3 30720", Pump,                          //
                            Pump,                                                      //
                            "console.CloseHandle 1", "console.CloseHandle 2",
                            "console.CloseHandle 3", "console.CloseHandle 4", Pump));
}

TEST_F(RunningACommand, ReturnsTheOutputWithItsLineEnds) {
    Console.Output = "Compilando juego.prg\r\nListo\r\n";
    EXPECT_EQ(Run(), QString("Compilando juego.prg\r\nListo\r\n"));
}

TEST_F(RunningACommand, ReadsTheOutputAsAnsi) {
    Console.Output = QByteArray("a\xF1o\0fin", 7);
    EXPECT_EQ(Run(), QStringLiteral("a\u00F1o") + QChar(u'\0') + QStringLiteral("fin"));
}

TEST_F(RunningACommand, ReturnsNothingOfAnEmptyOutput) { EXPECT_EQ(Run(), QString()); }

TEST_F(RunningACommand, ReadsOnceAndDropsWhatIsBehind30720Bytes) {
    Console.Output = QByteArray(30719, 'a') + "bc" + QByteArray(9000, 'd');

    const QString output = Run();

    EXPECT_EQ(output.size(), 30720);
    EXPECT_TRUE(output.endsWith("ab"));
    EXPECT_EQ(Log.CallsOf({"console.ReadFile"}).size(), 1U);
}

TEST_F(RunningACommand, TellsOnlyByItsTextThatThePipeFailed) {
    Console.PipeFails = true;
    Console.Error = 1450;
    EXPECT_EQ(Run(), QString("Error: CreatePipe failed. 1450"));
    EXPECT_THAT(Log.Calls(), ElementsAre(Pump, "console.CreatePipe 1048576", Pump));
}

TEST_F(RunningACommand, TellsOnlyByItsTextThatTheProcessFailed) {
    Console.ProcessFails = true;
    Console.Error = 2;
    EXPECT_EQ(Run(), QString("Error: CreateProcess failed. 2"));
    EXPECT_EQ(Log.Calls().size(), 6U);
    EXPECT_THAT(Log.Calls()[4], StartsWith("console.StartProcess"));
    EXPECT_EQ(Log.Calls()[5], Pump);
}

TEST_F(RunningACommand, TellsOnlyByItsTextThatTheReadFailed) {
    Console.ReadFails = true;
    Console.Error = 109;
    EXPECT_EQ(Run(), QString("Error: ReadFile failed. 109"));
    EXPECT_EQ(Log.Calls()[Log.Calls().size() - 2], "console.ReadFile 3 30720");
    EXPECT_EQ(Log.Calls().back(), Pump);
}

struct FailureRow : TestRow {
    bool FakeConsole::*Failure;
};

/// The handles of a failed run stay open: settled behaviour of the runner.
class FailedCommand : public RunningACommand, public testing::WithParamInterface<FailureRow> {};

TEST_P(FailedCommand, ClosesNoHandle) {
    Console.*GetParam().Failure = true;
    EXPECT_TRUE(Run().startsWith("Error: "));
    EXPECT_THAT(Log.Calls(), Not(Contains(StartsWith("console.CloseHandle"))));
}

INSTANTIATE_TEST_SUITE_P(Steps, FailedCommand,
                         testing::Values(FailureRow{"Pipe", &FakeConsole::PipeFails},
                                         FailureRow{"Process", &FakeConsole::ProcessFails},
                                         FailureRow{"Read", &FakeConsole::ReadFails}),
                         RowName);

TEST_F(RunningACommand, CanBeEnteredAgainWhileItStarts) {
    bool entered = false;
    Events.WhilePumping = [this, &entered] {
        if (!std::exchange(entered, true))
            ExecCmd(QStringLiteral("segundo"), Console, Events);
    };

    ExecCmd(QStringLiteral("primero"), Console, Events);

    EXPECT_THAT(Console.CommandLines, ElementsAre(QString("segundo"), QString("primero")));
}

} // namespace
} // namespace Quillbox
