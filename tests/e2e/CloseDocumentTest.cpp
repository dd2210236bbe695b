// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// A document that somebody has typed an x into, and the question that closing it asks.
class CloseDocument : public ProgramTest {
  protected:
    bool AskAboutChangedDocument() {
        Game_ = Write(QStringLiteral("juego.prg"), "Cls");
        if (!Start() || !Open(Game_))
            return false;
        Person_.Type(QStringLiteral("x"));
        return Press({QStringLiteral("ctrl+w")}) && Person_.WaitForWindow(QuestionTitle) != 0;
    }

    /// The document is still open and still changed: the same question comes again.
    bool IsStillChanged() { return Shows(Game_) && ClosesWithQuestion(Game_); }

    QString Game_;
};

/// Buttons of the question, from its right edge.
constexpr QPoint CancelButton(-50, -25);
constexpr QPoint NoButton(-140, -25);
constexpr QPoint YesButton(-230, -25);

} // namespace

TEST_F(CloseDocument, AsksInSpanish) {
    ASSERT_TRUE(AskAboutChangedDocument());
    EXPECT_EQ(Person_.ReadMessage(QuestionTitle),
              QStringLiteral("El archivo ha sido modificado. ¿Quieres guardar los cambios?"));
}

TEST_F(CloseDocument, SavesAndClosesWhenTheKeyForYesIsPressed) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    EXPECT_EQ(BytesOnceThey("xCls", Game_), "xCls");
    EXPECT_TRUE(Leaves());
}

TEST_F(CloseDocument, ClosesWithoutSavingWhenTheKeyForNoIsPressed) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+n")}));
    EXPECT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(Game_), "Cls");
}

TEST_F(CloseDocument, KeepsTheChangedDocumentWhenTheQuestionIsEscaped) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("Escape")}));
    EXPECT_TRUE(IsStillChanged());
    EXPECT_EQ(BytesOf(Game_), "Cls");
}

TEST_F(CloseDocument, SavesAndClosesWhenYesIsClicked) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.ClickIn(QuestionTitle, YesButton));
    EXPECT_EQ(BytesOnceThey("xCls", Game_), "xCls");
    EXPECT_TRUE(Leaves());
}

TEST_F(CloseDocument, ClosesWithoutSavingWhenNoIsClicked) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.ClickIn(QuestionTitle, NoButton));
    EXPECT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(Game_), "Cls");
}

TEST_F(CloseDocument, KeepsTheChangedDocumentWhenCancelIsClicked) {
    ASSERT_TRUE(AskAboutChangedDocument());
    ASSERT_TRUE(Person_.ClickIn(QuestionTitle, CancelButton));
    ASSERT_TRUE(Person_.WaitForNoWindow(QuestionTitle));
    EXPECT_TRUE(IsStillChanged());
    EXPECT_EQ(BytesOf(Game_), "Cls");
}

TEST_F(CloseDocument, LosesAnUntitledTextWhenTheChooserAfterYesIsCancelled) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+w")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    ASSERT_TRUE(Person_.PressIn(SaveTitle, {QStringLiteral("Escape")}));
    EXPECT_TRUE(Leaves());
}

TEST_F(CloseDocument, WritesAnUntitledTextWhereTheChooserAfterYesPointsTo) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    Person_.Type(QStringLiteral("uno\ndos"));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+w")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    const QString game = PersonsFile(QStringLiteral("nuevo.prg"));
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, game));
    EXPECT_EQ(BytesOnceThey("uno\ndos", game), "uno\ndos");
    EXPECT_TRUE(Leaves());
}

TEST_F(CloseDocument, ClosesAnUnchangedDocumentWithoutAQuestion) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));
    EXPECT_TRUE(ClosesAtOnce(game));
}

TEST_F(CloseDocument, ShowsTheNextDocumentInThePlaceOfTheClosedOne) {
    const QString first = Write(QStringLiteral("uno.prg"), "1");
    const QString second = Write(QStringLiteral("dos.prg"), "2");
    const QString third = Write(QStringLiteral("tres.prg"), "3");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(first) && Open(second) && Open(third));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+shift+F6")}));
    ASSERT_TRUE(Shows(second));

    ASSERT_TRUE(ClosesAtOnce(second));

    ASSERT_TRUE(Shows(third));
    Person_.Type(QStringLiteral("x"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("x3", third), "x3");
    EXPECT_EQ(BytesOf(second), "2");
    ASSERT_TRUE(Press({QStringLiteral("ctrl+shift+F6")}));
    EXPECT_TRUE(Shows(first));
}

} // namespace Quillbox
