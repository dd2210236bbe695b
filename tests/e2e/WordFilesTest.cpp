// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>

namespace Quillbox {
namespace {

/// Keywords.txt and QuickHelp.txt, which the program reads when it starts.
class WordFiles : public ProgramTest {
  protected:
    bool WriteEntries(const QString &name, int count) {
        QFile file(ProgramFile(name));
        const QByteArray bytes = QByteArray("Palabra\r\n").repeated(count);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    void ExpectStartStopsWithError9() {
        ASSERT_TRUE(Run_.Start());
        EXPECT_EQ(Person_.ReadMessage(NoticeTitle),
                  QStringLiteral("Se ha producido el error 9 en tiempo de ejecución:\n\n"
                                 "Subíndice fuera del intervalo."));
        ASSERT_TRUE(Person_.PressIn(NoticeTitle, {QStringLiteral("Return")}));
        ASSERT_TRUE(Run_.WaitForEnd());
        EXPECT_FALSE(Run_.HasCrashed());
        EXPECT_EQ(Run_.ExitCode(), 1);
    }

    /// Closes the warning once it says that the file does not exist.
    bool CloseWarningAbout(const QString &name) {
        const QString warning = QStringLiteral("El archivo %1 no existe.").arg(ProgramFile(name));
        return WaitUntil([&] { return Person_.ReadMessage(ErrorTitle) == warning; }) &&
               Person_.PressIn(ErrorTitle, {QStringLiteral("Return")});
    }
};

const QString Keywords = QStringLiteral("Keywords.txt");
const QString QuickHelp = QStringLiteral("QuickHelp.txt");

} // namespace

TEST_F(WordFiles, OfSixHundredEntriesAreRead) {
    ASSERT_TRUE(WriteEntries(Keywords, 600));
    ASSERT_TRUE(WriteEntries(QuickHelp, 600));
    ASSERT_TRUE(Start());
    EXPECT_TRUE(Leaves());
}

TEST_F(WordFiles, WithOneKeywordTooManyStopTheStart) {
    ASSERT_TRUE(WriteEntries(Keywords, 601));
    ExpectStartStopsWithError9();
}

TEST_F(WordFiles, WithOneLineOfHelpTooManyStopTheStart) {
    ASSERT_TRUE(WriteEntries(QuickHelp, 601));
    ExpectStartStopsWithError9();
}

TEST_F(WordFiles, ThatAreMissingAreNamedOneByOneAndTheStartGoesOn) {
    ASSERT_TRUE(QFile::remove(ProgramFile(Keywords)));
    ASSERT_TRUE(QFile::remove(ProgramFile(QuickHelp)));
    ASSERT_TRUE(Run_.Start());
    ASSERT_TRUE(CloseWarningAbout(Keywords));
    ASSERT_TRUE(CloseWarningAbout(QuickHelp));
    EXPECT_TRUE(ShowsHelp());
    EXPECT_TRUE(Leaves());
}

} // namespace Quillbox
