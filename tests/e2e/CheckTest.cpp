// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

namespace Quillbox {
namespace {

/// Checking the active document with F7.
class Check : public ProgramTest {
  protected:
    /// Opens the document and waits until its check has written the whole log file.
    bool CheckDocument(const QString &path) {
        return Start() && Open(path) && Press({QStringLiteral("F7")}) &&
               WaitUntil([this] { return Log().endsWith("\r\n"); });
    }

    QByteArray Log() const { return BytesOf(ProgramFile(QStringLiteral("CLog.tmp"))); }

    /// What the log pane shows, copied off it with mouse and keyboard.
    QString ReadLogPane() {
        Person_.ClickIn(MainTitle, QPoint(300, -30));
        return Person_.CopyAll();
    }
};

const QByteArray WrongGame = "While True\r\n  Cls\r\n  If x\r\n  Flip\r\nWend\r\n";

} // namespace

TEST_F(Check, ShowsTheErrorLineAndLeavesTheCaretAtItsStart) {
    const QString game = Write(QStringLiteral("juego.prg"), WrongGame);
    ASSERT_TRUE(CheckDocument(game));

    const QString error = QStringLiteral("Error in file %1 at line 5: \"Wend\" no cierra el \"If\" "
                                         "de la línea 3")
                              .arg(game);
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle), error);
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.WaitForNoWindow(NoticeTitle));
    EXPECT_EQ(Log(), error.toLatin1() + "\r\n\r\n");

    ASSERT_TRUE(Press({}));
    Person_.Type(QStringLiteral("EndIf\n"));
    Person_.Press({QStringLiteral("ctrl+s")});
    const QByteArray mended = "While True\r\n  Cls\r\n  If x\r\n  Flip\r\nEndIf\r\nWend\r\n";
    EXPECT_EQ(BytesOnceThey(mended, game), mended);
    EXPECT_EQ(ReadLogPane(), error);
}

TEST_F(Check, ShowsTheOutputLessItsLineEndWhenThereIsNoError) {
    const QString game = Write(QStringLiteral("juego.prg"), "Cls\r\nFlip\r\n");
    ASSERT_TRUE(CheckDocument(game));
    const QString output = QStringLiteral("Comprobador de estructura: 2 líneas, ningún error de "
                                          "estructura.");
    EXPECT_EQ(ReadLogPane(), output);
    EXPECT_EQ(Log(), output.toLatin1() + "\r\n\r\n");
    EXPECT_FALSE(Person_.IsWindowThere(NoticeTitle));
}

TEST_F(Check, OpensTheFileThatTheErrorNames) {
    const QString other = Write(QStringLiteral("niveles.prg"), "uno\r\ndos\r\ntres\r\n");
    UseCompiler("printf 'Aviso\\r\\nError in file " + other.toLatin1() +
                " at line 2:sobra esto\\r\\nError in file x at line 1:no\\r\\n'\n");
    ASSERT_TRUE(CheckDocument(Write(QStringLiteral("juego.prg"), "Cls")));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Shows(other));
    Person_.Type(QStringLiteral("*"));
    Person_.Press({QStringLiteral("ctrl+s")});
    EXPECT_EQ(BytesOnceThey("uno\r\n*dos\r\ntres\r\n", other), "uno\r\n*dos\r\ntres\r\n");
}

TEST_F(Check, SavesTheActiveDocumentAndNoOther) {
    const QString first = Write(QStringLiteral("uno.prg"), "1");
    const QString second = Write(QStringLiteral("dos.prg"), "2");
    ASSERT_TRUE(Start());
    for (const QString &game : {first, second}) {
        ASSERT_TRUE(Open(game));
        Person_.Type(QStringLiteral("x="));
    }
    ASSERT_TRUE(Press({QStringLiteral("F7")}));
    EXPECT_EQ(BytesOnceThey("x=2", second), "x=2");
    ASSERT_TRUE(WaitUntil([this] { return Log().endsWith("\r\n"); }));
    EXPECT_EQ(BytesOf(first), "1");
}

TEST_F(Check, OfAnUntitledDocumentAsksForItsNameFirst) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(OpenNew());
    ASSERT_TRUE(Press({QStringLiteral("F7")}));
    const QString game = PersonsFile(QStringLiteral("nuevo.prg"));
    ASSERT_TRUE(Person_.ChooseFile(SaveTitle, game));
    EXPECT_TRUE(Shows(game));
    EXPECT_TRUE(WaitUntil([this] { return Log().endsWith("\r\n"); }));
}

TEST_F(Check, WithoutTheCompilerShowsTheSystemsErrorCutLikeAnyOutput) {
    WriteSettings("[Quillbox]\r\nFenixCPath=/no/hay\r\n");
    ASSERT_TRUE(CheckDocument(Write(QStringLiteral("juego.prg"), "Cls")));
    EXPECT_EQ(Log(), "Error: CreateProcess failed. 2\r\n");
    EXPECT_EQ(ReadLogPane(), QStringLiteral("Error: CreateProcess failed."));
    EXPECT_TRUE(Leaves());
}

TEST_F(Check, TakesExactlyTheBytesThatTheCompilerWrote) {
    UseCompiler("printf 'Todo ha ido bien: 29 bytes.\\r\\n'\n");
    ASSERT_TRUE(CheckDocument(Write(QStringLiteral("juego.prg"), "Cls")));
    EXPECT_EQ(Log(), "Todo ha ido bien: 29 bytes.\r\n\r\n");
    EXPECT_EQ(ReadLogPane(), QStringLiteral("Todo ha ido bien: 29 bytes."));
}

TEST_F(Check, OfAnOutputOfOneByteIsARunTimeErrorAndTheProgramGoesOn) {
    UseCompiler("printf x\n");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Open(Write(QStringLiteral("juego.prg"), "Cls")));
    ASSERT_TRUE(Press({QStringLiteral("F7")}));
    EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
              QStringLiteral("Se ha producido el error 5 en tiempo de ejecución:\n\n"
                             "Argumento o llamada a procedimiento no válidos."));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
