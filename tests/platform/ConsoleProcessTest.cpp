// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemConsoleProcess.h"

#include "platform/ProgramTest.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <signal.h>

namespace Quillbox {

namespace {

class TheConsoleProcess : public ProgramTest {
  protected:
    /// What one read yields after the program has ended.
    std::string OutputOf(const QString &commandLine) {
        const PipeHandles pipe = *Console.CreatePipe(1 << 20);
        const auto process = Console.StartProcess(commandLine, pipe.WriteEnd);
        std::string output = "not started";
        Console.CloseHandle(pipe.WriteEnd);
        if (process) {
            Console.WaitForProcess(process->Process);
            output = Console.ReadFile(pipe.ReadEnd, 30720).value_or("not read").toStdString();
            Console.CloseHandle(process->Process);
            Console.CloseHandle(process->Thread);
        }
        Console.CloseHandle(pipe.ReadEnd);
        return output;
    }

    int ErrorOf(const QString &commandLine) {
        EXPECT_EQ(OutputOf(commandLine), "not started") << commandLine.toStdString();
        return Console.LastError();
    }

    /// A script that writes each of its arguments on a line of its own.
    QString MakeEcho(const QString &name) const {
        return MakeScript(name, "for a in \"$@\"; do printf '<%s>\\n' \"$a\"; done; echo .");
    }

    SystemConsoleProcess Console;
};

} // namespace

TEST_F(TheConsoleProcess, YieldsExactlyTheBytesThatTheProgramWrote) {
    MakeScript("fxc", "printf '29 bytes de salida, y listo\\r\\n'");
    EXPECT_EQ(OutputOf("./fxc"), "29 bytes de salida, y listo\r\n");
    EXPECT_EQ(OutputOf("./fxc").size(), 29U);
    EXPECT_TRUE(HasNoChild());
}

TEST_F(TheConsoleProcess, YieldsAtMostAsManyBytesAsAreAskedFor) {
    MakeScript("fxc", "head -c 40000 /dev/zero");
    EXPECT_EQ(OutputOf("./fxc"), std::string(30720, '\0'));
}

TEST_F(TheConsoleProcess, KeepsTheRestForTheNextRead) {
    MakeScript("fxc", "printf 12345");
    const PipeHandles pipe = *Console.CreatePipe(1 << 20);
    const ProcessHandles process = *Console.StartProcess("./fxc", pipe.WriteEnd);
    Console.WaitForProcess(process.Process);
    EXPECT_EQ(Console.ReadFile(pipe.ReadEnd, 3), "123");
    EXPECT_EQ(Console.ReadFile(pipe.ReadEnd, 30720), "45");
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
}

TEST_F(TheConsoleProcess, YieldsNothingOnceTheWriteEndsAreClosed) {
    EXPECT_EQ(OutputOf("/bin/true"), "");
}

TEST_F(TheConsoleProcess, IgnoresTheExitCode) {
    MakeScript("fxc", "echo mal; exit 3");
    EXPECT_EQ(OutputOf("./fxc"), "mal\n");
    EXPECT_EQ(OutputOf("/bin/false"), "");
}

TEST_F(TheConsoleProcess, MakesPipesOfTheSizeThatIsAskedFor) {
    const PipeHandles pipe = *Console.CreatePipe(1 << 20);
    EXPECT_EQ(::fcntl(static_cast<int>(pipe.ReadEnd), F_GETPIPE_SZ), 1 << 20);
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
}

TEST_F(TheConsoleProcess, GoesOnWithASmallerPipeWhenTheSizeIsRefused) {
    const auto pipe = Console.CreatePipe(std::size_t{1} << 40);
    ASSERT_TRUE(pipe);
    EXPECT_GE(::fcntl(static_cast<int>(pipe->ReadEnd), F_GETPIPE_SZ), 4096);
    Console.CloseHandle(pipe->ReadEnd);
    Console.CloseHandle(pipe->WriteEnd);
}

TEST_F(TheConsoleProcess, HidesThePipeFromOtherChildren) {
    const PipeHandles pipe = *Console.CreatePipe(4096);
    for (const SystemHandle end : {pipe.ReadEnd, pipe.WriteEnd}) {
        EXPECT_EQ(::fcntl(static_cast<int>(end), F_GETFD), FD_CLOEXEC);
        Console.CloseHandle(end);
    }
}

TEST_F(TheConsoleProcess, RunsAProgramWithBlanksInItsPathWithAndWithoutQuotes) {
    MakeEcho("mi juego/el fxc");
    EXPECT_EQ(OutputOf("\"mi juego\\el fxc\" \"a b\" c"), "<a b>\n<c>\n.\n");
    EXPECT_EQ(OutputOf("mi juego\\el fxc \"a b\" c"), "<a b>\n<c>\n.\n");
    EXPECT_EQ(OutputOf('"' + PathOf("mi juego/el fxc") + '"'), ".\n");
}

TEST_F(TheConsoleProcess, PassesOverAFolderWhenThePathMayGoOn) {
    MakeEcho("mi juego/fxc");
    QDir().mkdir(PathOf("mi"));
    EXPECT_EQ(OutputOf(PathOf("mi juego/fxc") + " x"), "<x>\n.\n");
}

TEST_F(TheConsoleProcess, HandsArgumentsOverWithoutAShell) {
    MakeEcho("fxc");
    EXPECT_EQ(OutputOf("fxc $HOME *.prg `id` año;\\\"x\\\" \"\""),
              "<$HOME>\n<*.prg>\n<`id`>\n<año;\"x\">\n<>\n.\n");
}

TEST_F(TheConsoleProcess, LeavesPathsForANativeProgramAsTheyAre) {
    MakeEcho("FXC.exe");
    EXPECT_EQ(OutputOf("fxc /tmp/a.prg C:\\b.prg"), "</tmp/a.prg>\n<C:\\b.prg>\n.\n");
}

TEST_F(TheConsoleProcess, FindsTheProgramWithOrWithoutExe) {
    MakeScript("uno.exe", "echo uno");
    MakeScript("dos", "echo dos");
    MakeScript("dos.exe", "echo dos.exe");
    EXPECT_EQ(OutputOf("uno"), "uno\n");
    EXPECT_EQ(OutputOf("UNO.EXE"), "uno\n");
    EXPECT_EQ(OutputOf("dos"), "dos\n");
}

TEST_F(TheConsoleProcess, LooksBesideTheProgramThenInTheCurrentFolderThenOnTheSearchPath) {
    const QString name = QString("quillbox-prueba-%1").arg(::getpid());
    const QString beside = QCoreApplication::applicationDirPath() + '/' + name;
    MakeScript("ruta/" + name, "echo ruta");
    SearchFirstIn("ruta");
    EXPECT_EQ(OutputOf(name), "ruta\n");
    MakeScript(name, "echo actual");
    EXPECT_EQ(OutputOf(name), "actual\n");
    ASSERT_TRUE(QFile::link(MakeScript("otra/x", "echo junto"), beside)) << beside.toStdString();
    EXPECT_EQ(OutputOf(name), "junto\n");
    QFile::remove(beside);
}

TEST_F(TheConsoleProcess, NumbersTheErrorOfAMissingProgram) {
    EXPECT_EQ(ErrorOf("no-hay-tal-programa -o"), 2);
    EXPECT_EQ(ErrorOf("\"C:\\no hay\\fxc.exe\" -o"), 2);
    EXPECT_EQ(ErrorOf(PathOf("no/hay")), 2);
    EXPECT_EQ(ErrorOf(QString()), 2);
    EXPECT_TRUE(HasNoChild());
}

TEST_F(TheConsoleProcess, PassesOverForbiddenFoldersOfTheSearchPath) {
    QDir().mkdir(PathOf("cerrada"));
    SetMode(PathOf("cerrada"), 0);
    SetMode(PathOf("."), 0755);
    SearchFirstIn("cerrada");
    const OrdinaryUser user;
    EXPECT_EQ(ErrorOf("no-hay-tal-programa"), 2);
    EXPECT_EQ(OutputOf("echo sigue"), "sigue\n");
}

TEST_F(TheConsoleProcess, NumbersTheErrorOfWhatCannotBeExecuted) {
    QDir().mkdir(PathOf("carpeta"));
    EXPECT_EQ(ErrorOf(PathOf("carpeta")), 13);
    WriteTestFile(PathOf("texto"), "hola");
    EXPECT_EQ(ErrorOf(PathOf("texto")), 13);
    SetMode(PathOf("texto"), 0755);
    EXPECT_EQ(ErrorOf(PathOf("texto")), ENOEXEC);
}

TEST_F(TheConsoleProcess, GivesTheProgramNoStandardInputAndLosesItsErrors) {
    MakeScript("fxc", "cat; echo perdido >&2; echo fin");
    EXPECT_EQ(OutputOf("./fxc"), "fin\n");
}

TEST_F(TheConsoleProcess, RunsInTheCurrentFolderWithTheCurrentEnvironment) {
    MakeScript("fxc", "pwd -P; echo $QUILLBOX_PRUEBA");
    qputenv("QUILLBOX_PRUEBA", "sí");
    EXPECT_EQ(OutputOf("./fxc"), QDir().canonicalPath().toStdString() + "\nsí\n");
    qunsetenv("QUILLBOX_PRUEBA");
}

TEST_F(TheConsoleProcess, StartsTheProgramWithTheUsualAnswersToSignals) {
    MakeScript("fxc", "grep SigBlk /proc/self/status; grep SigIgn /proc/self/status");
    const auto before = ::signal(SIGUSR2, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    ::sigprocmask(SIG_BLOCK, &blocked, nullptr);
    const QStringList lines = QString::fromStdString(OutputOf("./fxc")).split('\n');
    ::sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
    ::signal(SIGUSR2, before);

    // The signals from 32 on are the C library's own.
    constexpr quint64 ordinarySignals = 0x7FFFFFFF;
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0].mid(8).toULongLong(nullptr, 16) & ordinarySignals, 0U);
    EXPECT_EQ(lines[1].mid(8).toULongLong(nullptr, 16) & ordinarySignals, 0U);
}

TEST_F(TheConsoleProcess, NeverClosesADescriptorTwice) {
    const PipeHandles pipe = *Console.CreatePipe(4096);
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
    const int descriptor = ::open("/dev/null", O_RDONLY);
    ASSERT_EQ(descriptor, std::min(pipe.ReadEnd, pipe.WriteEnd)) << "the number is used again";
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
    EXPECT_EQ(::close(descriptor), 0);
}

TEST_F(TheConsoleProcess, RefusesHandlesThatAreClosed) {
    const PipeHandles pipe = *Console.CreatePipe(4096);
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
    EXPECT_FALSE(Console.ReadFile(pipe.ReadEnd, 10));
    EXPECT_EQ(Console.LastError(), EBADF);
    EXPECT_FALSE(Console.StartProcess("/bin/true", pipe.WriteEnd));
    EXPECT_EQ(Console.LastError(), EBADF);
}

TEST_F(TheConsoleProcess, LeavesNoZombieWhenAProcessIsForgotten) {
    const PipeHandles pipe = *Console.CreatePipe(4096);
    const ProcessHandles process = *Console.StartProcess("/bin/true", pipe.WriteEnd);
    Console.CloseHandle(process.Thread);
    Console.CloseHandle(process.Process);
    EXPECT_TRUE(BecomesTrue([] { return HasNoChild(); }));
    Console.CloseHandle(pipe.ReadEnd);
    Console.CloseHandle(pipe.WriteEnd);
}

TEST_F(TheConsoleProcess, RunsAProgramForWindowsThroughWine) {
    MakeEcho("ruta/wine");
    SearchFirstIn("ruta");
    const QString program = MakeWindowsProgram("mi juego/fxc.exe");
    EXPECT_EQ(OutputOf('"' + program + "\" -o \"a b\""),
              '<' + program.toStdString() + ">\n<-o>\n<a b>\n.\n");
}

TEST_F(TheConsoleProcess, HandsPathsToWineInItsOwnForm) {
    MakeEcho("ruta/wine");
    SearchFirstIn("ruta");
    MakeWindowsProgram("fxc.exe");
    const QString folder = PathOf("");
    const std::string windows = "Z:" + QString(folder).replace('/', '\\').toStdString();
    EXPECT_EQ(OutputOf("./fxc " + folder + "nuevo.prg " + folder + " /no/hay/a.prg /o -I/tmp a/b"),
              "<./fxc.exe>\n<" + windows + "nuevo.prg>\n<" + windows +
                  ">\n</no/hay/a.prg>\n</o>\n<-I/tmp>\n<a/b>\n.\n");
}

TEST_F(TheConsoleProcess, NumbersTheErrorOfAProgramForWindowsWithoutWine) {
    QDir().mkdir(PathOf("ruta"));
    SearchOnlyIn("ruta");
    MakeWindowsProgram("fxc.exe");
    EXPECT_EQ(ErrorOf("fxc -o"), ENOEXEC);
}

} // namespace Quillbox
