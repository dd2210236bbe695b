// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// Three changed documents.
class Exit : public ProgramTest {
  protected:
    bool OpenThreeChanged() {
        for (const char *name : {"uno.prg", "dos.prg", "tres.prg"})
            Games_.append(Write(QLatin1String(name), name));
        bool opened = Start();
        for (const QString &game : Games_) {
            opened = opened && Open(game);
            Person_.Type(QStringLiteral("x"));
        }
        return opened;
    }

    /// Answers the question about the document.
    bool Answer(const QString &document, const QString &key) {
        return Shows(document) && Person_.PressIn(QuestionTitle, {key}) &&
               Person_.WaitForNoWindow(QuestionTitle);
    }

    QStringList Games_;
};

} // namespace

TEST_F(Exit, RefusedAtTheSecondOfThreeLeavesTwoOpenAndWritesNoSettings) {
    const QByteArray settings = BytesOf(SettingsFile());
    ASSERT_TRUE(OpenThreeChanged());
    ASSERT_TRUE(Press({QStringLiteral("ctrl+q")}));
    ASSERT_TRUE(Shows(Games_[2]));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+n")}));
    ASSERT_TRUE(Shows(Games_[1]));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(QuestionTitle));

    EXPECT_TRUE(Run_.IsRunning());
    EXPECT_EQ(BytesOf(SettingsFile()), settings);
    EXPECT_TRUE(ClosesWithQuestion(Games_[1]));
    EXPECT_TRUE(ClosesWithQuestion(Games_[0]));
    EXPECT_TRUE(Leaves());
    EXPECT_EQ(BytesOf(Games_[2]), "tres.prg");
}

TEST_F(Exit, AsksFromTheLastDocumentToTheFirstAndSavesWhatIsAnsweredYes) {
    ASSERT_TRUE(OpenThreeChanged());
    ASSERT_TRUE(Press({QStringLiteral("ctrl+q")}));
    ASSERT_TRUE(Shows(Games_[2]));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    ASSERT_TRUE(Shows(Games_[1]));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+n")}));
    ASSERT_TRUE(Shows(Games_[0]));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("alt+s")}));
    ASSERT_TRUE(Run_.WaitForEnd());
    EXPECT_FALSE(Run_.HasCrashed());
    EXPECT_EQ(Run_.ExitCode(), 0);
    EXPECT_EQ(BytesOf(Games_[0]), "xuno.prg");
    EXPECT_EQ(BytesOf(Games_[1]), "dos.prg");
    EXPECT_EQ(BytesOf(Games_[2]), "xtres.prg");
}

TEST_F(Exit, ByTheCloseBoxOfTheWindowAsksToo) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(game));
    Person_.Type(QStringLiteral("x"));
    ASSERT_TRUE(Press({QStringLiteral("alt+F4")}));
    ASSERT_TRUE(Person_.PressIn(QuestionTitle, {QStringLiteral("Escape")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(QuestionTitle));
    EXPECT_TRUE(Run_.IsRunning());
    EXPECT_TRUE(ClosesWithQuestion(game));
}

TEST_F(Exit, WhileTheSplashIsStillThereEndsTheProgram) {
    ASSERT_TRUE(Start());
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
