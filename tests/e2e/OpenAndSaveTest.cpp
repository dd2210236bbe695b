// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QDir>
#include <QFile>

namespace Quillbox {
namespace {

using OpenAndSave = ProgramTest;

} // namespace

TEST_F(OpenAndSave, WritesExactlyTheTypedChangeIntoTheFile) {
    const QString game = Write(QStringLiteral("juego.prg"), "Print \"hola\"\r\nWaitKey\r\nEnd");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));

    Person_.Type(QStringLiteral("; uno\nCls"));
    Person_.Press({QStringLiteral("ctrl+s")});

    const QByteArray changed = "; uno\r\nClsPrint \"hola\"\r\nWaitKey\r\nEnd";
    EXPECT_EQ(BytesOnceThey(changed, game), changed);
    EXPECT_TRUE(ClosesAtOnce(game));
}

TEST_F(OpenAndSave, TakesLettersWithAccentsFromTheKeyboardAsAnsiBytes) {
    const QString game = Write(QStringLiteral("juego.prg"), "");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));

    Person_.Press({QStringLiteral("ñ"), QStringLiteral("shift+ñ"), QStringLiteral("dead_acute"),
                   QStringLiteral("a"), QStringLiteral("shift+dead_diaeresis"), QStringLiteral("u"),
                   QStringLiteral("¡"), QStringLiteral("shift+¿")});
    Person_.Press({QStringLiteral("ctrl+s")});

    const QByteArray changed = "\xF1\xD1\xE1\xFC\xA1\xBF";
    EXPECT_EQ(BytesOnceThey(changed, game), changed);
}

TEST_F(OpenAndSave, TakesPastedTextAsAnsiBytes) {
    const QString game = Write(QStringLiteral("juego.prg"), "");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));

    Person_.Paste(QStringLiteral("¿Cuánto cuesta la piñata? 5 € «más»"));
    Person_.Press({QStringLiteral("ctrl+s")});

    const QByteArray changed = "\xBF"
                               "Cu\xE1nto cuesta la pi\xF1"
                               "ata? 5 \x80 \xABm\xE1s\xBB";
    EXPECT_EQ(BytesOnceThey(changed, game), changed);
}

TEST_F(OpenAndSave, KeepsLinuxLineEndsWhereTheFileHasThem) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls\nFlip\n");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));

    Person_.Type(QStringLiteral("x\n"));
    Person_.Press({QStringLiteral("ctrl+s")});

    EXPECT_EQ(BytesOnceThey("x\nCls\nFlip\n", game), "x\nCls\nFlip\n");
}

TEST_F(OpenAndSave, AsksAboutChangesUntilTheyAreSaved) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+w")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
    ASSERT_EQ(BytesOnceThey("xCls", game), "xCls");
    EXPECT_TRUE(ClosesAtOnce(game));
}

TEST_F(OpenAndSave, ReadsAnOpenFileOnlyOnceWhateverTheLetterCaseOfItsName) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(Open(game));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
    EXPECT_EQ(BytesOnceThey("xCls", game), "xCls");
}

TEST_F(OpenAndSave, ListsOnlyProgramsInTheOpenChooser) {
    Write(QStringLiteral("apuntes.txt"), "");
    Write(QStringLiteral("juego.prg"), "Cls");
    Write(QStringLiteral("nivel.bb"), "");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Press({QStringLiteral("ctrl+o")}));
    ASSERT_TRUE(Person_.ChooseFile(OpenTitle, PersonsFile(QString())));
    for (const QString &key : {QStringLiteral("Home"), QStringLiteral("End")}) {
        QString chosen;
        // The chooser reads folders on its own time. A click at the foot of the list gives it the
        // keyboard, and the keys go to its first and its last entry.
        WaitUntil([&] {
            Person_.ClickIn(OpenTitle, QPoint(-120, -160));
            Person_.Press({key, QStringLiteral("alt+n")});
            chosen = Person_.CopyAll();
            return !chosen.isEmpty();
        });
        EXPECT_EQ(chosen, QStringLiteral("juego.prg"));
    }
}

TEST_F(OpenAndSave, OpensAFileOfAnotherEndingWhenItsNameIsTyped) {
    const QString level = Write(QStringLiteral("nivel.bb"), "Cls");
    ASSERT_TRUE(Start());
    EXPECT_TRUE(Open(level));
}

TEST_F(OpenAndSave, ChangesNothingWhenTheOpenChooserIsCancelled) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Press({QStringLiteral("ctrl+o")}));
    ASSERT_TRUE(Person_.PressIn(OpenTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(OpenTitle));
    EXPECT_TRUE(ShowsHelp());
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
