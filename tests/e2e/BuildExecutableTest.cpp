// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

namespace Quillbox {
namespace {

/// Building an executable with Ctrl+F7, by a compiler that writes its arguments down.
class BuildExecutable : public ProgramTest {
  protected:
    bool AskWhere(const QString &name) {
        UseCompiler("printf '%s|' \"$@\" >" + Arguments().toLatin1() + "\nprintf 'bien\\r\\n'\n");
        Game_ = Write(name, "Cls");
        if (!Start() || !Open(Game_))
            return false;
        Person_.Type(QStringLiteral("x"));
        return Press({QStringLiteral("ctrl+F7")}) && Person_.WaitForWindow(SaveTitle) != 0;
    }

    QString Arguments() const { return PersonsFile(QStringLiteral("argumentos")); }

    QString Game_;
};

} // namespace

TEST_F(BuildExecutable, ProposesTheDocumentsNameLessTwoLettersWithItsNewEnding) {
    ASSERT_TRUE(AskWhere(QStringLiteral("juego.bb")));
    ASSERT_TRUE(Person_.PressIn(SaveTitle, {QStringLiteral("alt+n")}));
    EXPECT_EQ(Person_.CopyAll(), QStringLiteral("juego.exe"));
}

TEST_F(BuildExecutable, DoesNothingWhenTheChooserIsCancelled) {
    ASSERT_TRUE(AskWhere(QStringLiteral("juego.bb")));
    ASSERT_TRUE(Person_.PressIn(SaveTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(SaveTitle));
    EXPECT_TRUE(ClosesWithQuestion(Game_));
    EXPECT_EQ(BytesOf(Game_), "Cls");
    EXPECT_EQ(BytesOf(Arguments()), "");
    EXPECT_EQ(BytesOf(ProgramFile(QStringLiteral("CLog.tmp"))), "");
}

TEST_F(BuildExecutable, SavesAndTellsTheCompilerWhereToPutTheExecutable) {
    ASSERT_TRUE(AskWhere(QStringLiteral("juego.bb")));
    const QString executable = PersonsFile(QStringLiteral("mi juego.exe"));
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, executable));
    const QByteArray expected = QStringLiteral("-o|%1|%2|").arg(executable, Game_).toLatin1();
    EXPECT_EQ(BytesOnceThey(expected, Arguments()), expected);
    EXPECT_EQ(BytesOf(Game_), "xCls");
    const QString log = ProgramFile(QStringLiteral("CLog.tmp"));
    EXPECT_EQ(BytesOnceThey("bien\r\n\r\n", log), "bien\r\n\r\n");
}

} // namespace Quillbox
