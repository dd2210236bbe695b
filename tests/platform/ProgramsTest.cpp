// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/RuntimeError.h"
#include "platform/ProgramTest.h"
#include "platform/SystemPrograms.h"

namespace Quillbox {

namespace {

class ThePrograms : public ProgramTest {
  protected:
    /// The number of the run-time error, 0 for none.
    int ErrorOf(const QString &commandLine) {
        try {
            Programs.Start(commandLine, WindowStyle::Normal);
            return 0;
        } catch (const RuntimeError &error) {
            return error.Number;
        }
    }

    /// What a started script has written to the file "marca", once it has ended.
    std::string Mark() const {
        EXPECT_TRUE(BecomesTrue([this] { return QFile::exists(PathOf("marca")); }));
        EXPECT_TRUE(BecomesTrue([] { return HasNoChild(); }));
        return ReadTestFile(PathOf("marca")).toStdString();
    }

    SystemPrograms Programs;
};

} // namespace

TEST_F(ThePrograms, StartsAProgramWithItsArgumentsAndLeavesNoZombie) {
    MakeScript("mi visor/visor", "printf '%s|' \"$@\" > nueva; mv nueva marca; exit 5");
    EXPECT_EQ(ErrorOf("\"mi visor\\visor\" \"a b\" año"), 0);
    EXPECT_EQ(Mark(), "a b|año|");
}

TEST_F(ThePrograms, DoesNotWaitForTheProgram) {
    MakeScript("visor",
               "while [ ! -e sigue ]; do sleep 0.02; done; echo fin > nueva; mv nueva marca");
    EXPECT_EQ(ErrorOf("./visor"), 0);
    EXPECT_FALSE(HasNoChild());
    WriteTestFile(PathOf("sigue"), "");
    EXPECT_EQ(Mark(), "fin\n");
}

TEST_F(ThePrograms, GivesTheProgramASessionOfItsOwn) {
    MakeScript("visor", "cut -d' ' -f1,6 /proc/$$/stat > nueva; mv nueva marca");
    EXPECT_EQ(ErrorOf("./visor"), 0);
    const QStringList numbers = QString::fromStdString(Mark()).trimmed().split(' ');
    ASSERT_EQ(numbers.size(), 2);
    EXPECT_EQ(numbers[0], numbers[1]);
}

TEST_F(ThePrograms, GivesTheProgramNoTerminal) {
    MakeScript("visor", "salida=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                        "echo $salida > nueva; mv nueva marca");
    EXPECT_EQ(ErrorOf("./visor"), 0);
    EXPECT_EQ(Mark(), "/dev/null /dev/null /dev/null\n");
}

TEST_F(ThePrograms, LetsTheProgramLiveOn) {
    MakeScript("visor", "sleep 0.3; echo fin > nueva; mv nueva marca");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        ::_exit(ErrorOf("./visor"));
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(QFile::exists(PathOf("marca")));
    EXPECT_EQ(Mark(), "fin\n");
}

TEST_F(ThePrograms, RaisesTheErrorsThatUsersKnow) {
    EXPECT_EQ(ErrorOf("no-hay-tal-programa"), 53);
    EXPECT_EQ(ErrorOf(QString()), 53);
    QDir().mkdir(PathOf("carpeta"));
    EXPECT_EQ(ErrorOf(PathOf("carpeta")), 70);
    WriteTestFile(PathOf("texto"), "hola");
    EXPECT_EQ(ErrorOf(PathOf("texto")), 70);
    SetMode(PathOf("texto"), 0755);
    EXPECT_EQ(ErrorOf(PathOf("texto")), 5);
    EXPECT_TRUE(HasNoChild());
}

TEST_F(ThePrograms, StartsAProgramForWindowsThroughWine) {
    MakeScript("ruta/wine", "printf '%s|' \"$@\" > nueva; mv nueva marca");
    SearchFirstIn("ruta");
    MakeWindowsProgram("visor.exe");
    EXPECT_EQ(ErrorOf("./visor x"), 0);
    EXPECT_EQ(Mark(), "./visor.exe|x|");
}

TEST_F(ThePrograms, SetsVariablesForLaterChildren) {
    MakeScript("visor", "printf %s \"$QUILLBOX_PRUEBA\" > nueva; mv nueva marca");
    Programs.SetVariable("QUILLBOX_PRUEBA", "C:\\año; x");
    EXPECT_EQ(qEnvironmentVariable("QUILLBOX_PRUEBA"), "C:\\año; x");
    EXPECT_EQ(ErrorOf("./visor"), 0);
    EXPECT_EQ(Mark(), "C:\\año; x");
    qunsetenv("QUILLBOX_PRUEBA");
}

} // namespace Quillbox
