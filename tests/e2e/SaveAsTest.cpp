// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// A document with the text "xCls", and the chooser that asks where to save it.
class SaveAs : public ProgramTest {
  protected:
    bool AskWhere() {
        Game_ = Write(QStringLiteral("juego.prg"), "Cls");
        if (!Start() || !Open(Game_))
            return false;
        Person_.Type(QStringLiteral("x"));
        return Press({QStringLiteral("ctrl+shift+s")}) && Person_.WaitForWindow(SaveTitle) != 0;
    }

    QString Game_;
};

// The question whether to overwrite has the title of the chooser that asks it.

} // namespace

TEST_F(SaveAs, GivesTheDocumentItsNewNameAndLeavesTheOldFileAlone) {
    ASSERT_TRUE(AskWhere());
    const QString copy = PersonsFile(QStringLiteral("copia.prg"));
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, copy));
    EXPECT_TRUE(Shows(copy));
    EXPECT_EQ(BytesOf(copy), "xCls");
    EXPECT_EQ(BytesOf(Game_), "Cls");
    EXPECT_TRUE(ClosesAtOnce(copy));
}

TEST_F(SaveAs, AddsTheEndingOfProgramsToANameWithoutOne) {
    ASSERT_TRUE(AskWhere());
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, PersonsFile(QStringLiteral("copia"))));
    EXPECT_TRUE(Shows(PersonsFile(QStringLiteral("copia.prg"))));
}

TEST_F(SaveAs, ChangesNothingWhenTheChooserIsCancelled) {
    ASSERT_TRUE(AskWhere());
    ASSERT_TRUE(Person_.PressIn(SaveTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Shows(Game_));
    EXPECT_TRUE(ClosesWithQuestion(Game_));
    EXPECT_EQ(BytesOf(Game_), "Cls");
}

TEST_F(SaveAs, AsksBeforeItOverwritesAnotherFileAndObeysNo) {
    const QString other = Write(QStringLiteral("otro.prg"), "viejo");
    ASSERT_TRUE(AskWhere());
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, other));
    ASSERT_TRUE(Person_.WaitForWindowCount(SaveTitle, 2));
    Person_.Press({QStringLiteral("alt+n")});
    ASSERT_TRUE(Person_.WaitForWindowCount(SaveTitle, 1));
    ASSERT_TRUE(Person_.PressIn(SaveTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(SaveTitle));
    EXPECT_EQ(BytesOf(other), "viejo");
    EXPECT_TRUE(Shows(Game_));
}

TEST_F(SaveAs, OverwritesAnotherFileAfterYes) {
    const QString other = Write(QStringLiteral("otro.prg"), "viejo");
    ASSERT_TRUE(AskWhere());
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, other));
    ASSERT_TRUE(Person_.WaitForWindowCount(SaveTitle, 2));
    Person_.Press({QStringLiteral("alt+s")});
    EXPECT_EQ(BytesOnceThey("xCls", other), "xCls");
    EXPECT_TRUE(Shows(other));
}

} // namespace Quillbox
