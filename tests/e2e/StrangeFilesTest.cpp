// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// Files that nobody would call programs, or that are very long.
class StrangeFiles : public ProgramTest {
  protected:
    bool OpenFile(const QByteArray &bytes) {
        Game_ = Write(QStringLiteral("juego.prg"), bytes);
        return Start() && Open(Game_);
    }

    /// The file goes first, so that only what the program writes can be found there.
    bool SavesAs(const QByteArray &bytes) {
        return QFile::remove(Game_) && Press({QStringLiteral("ctrl+s")}) &&
               BytesOnceThey(bytes, Game_) == bytes;
    }

    /// Types a letter behind everything else.
    void TypeAtTheEnd() {
        Press({QStringLiteral("ctrl+End")});
        Person_.Type(QStringLiteral("x"));
    }

    QString Game_;
};

QByteArray EveryByte() {
    QByteArray bytes;
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    return bytes;
}

} // namespace

TEST_F(StrangeFiles, OfEveryByteValueAreSavedAsTheyWere) {
    const QByteArray bytes =
        EveryByte().repeated(3) + "\r\n\n\r" + QByteArray("\0\0", 2) + EveryByte();
    ASSERT_TRUE(OpenFile(bytes));
    EXPECT_TRUE(SavesAs(bytes));
    TypeAtTheEnd();
    EXPECT_TRUE(SavesAs(bytes + 'x'));
    EXPECT_TRUE(ClosesAtOnce(Game_));
}

TEST_F(StrangeFiles, WithALineOfOneMegabyteCanBeEdited) {
    const QByteArray bytes = QByteArray("Print \"uno dos\" + 3 * ").repeated(50000).left(1048576);
    ASSERT_TRUE(OpenFile(bytes));
    TypeAtTheEnd();
    EXPECT_TRUE(SavesAs(bytes + 'x'));
    EXPECT_TRUE(Leaves());
}

TEST_F(StrangeFiles, WithTwoHundredThousandLinesCanBeEdited) {
    const QByteArray bytes = QByteArray("Print x ; l\xEDnea\r\n").repeated(200000);
    ASSERT_TRUE(OpenFile(bytes));
    TypeAtTheEnd();
    EXPECT_TRUE(SavesAs(bytes + 'x'));
    EXPECT_TRUE(Leaves());
}

TEST_F(StrangeFiles, WithoutAnyByteStayEmpty) {
    ASSERT_TRUE(OpenFile(""));
    ASSERT_TRUE(QFile::remove(Game_));
    ASSERT_TRUE(Press({QStringLiteral("ctrl+s")}));
    EXPECT_TRUE(WaitUntil([this] { return QFile::exists(Game_); }));
    EXPECT_EQ(BytesOf(Game_), "");
}

TEST_F(StrangeFiles, ThatAreMissingGiveAMessageAndNoDocument) {
    const QString missing = PersonsFile(QStringLiteral("falta.prg"));
    UseCompiler("printf 'Error in file " + missing.toLatin1() + " at line 1:no\\r\\n'\n");
    ASSERT_TRUE(OpenFile("Cls"));
    ASSERT_TRUE(Press({QStringLiteral("F7")}));
    EXPECT_EQ(
        Person_.ReadMessage(ErrorTitle),
        QStringLiteral("No se ha podido abrir el archivo %1.\nEl archivo no existe.").arg(missing));
    ASSERT_TRUE(Person_.PressIn(ErrorTitle, {QStringLiteral("Return")}));
    ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
    EXPECT_FALSE(Person_.IsWindowThere(missing));
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
