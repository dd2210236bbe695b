// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramTest.h"

#include <QFile>
#include <QRandomGenerator>

namespace Quillbox {
namespace {

/// The settings file between one start and one exit of the program.
class StoredSettings : public ProgramTest {
  protected:
    bool StartAndLeave() { return Start() && Leaves(); }

    /// The run-time error that ends a start, read off its message box, which is then closed.
    QString ErrorAtStart() {
        if (!Run_.Start() || Person_.WaitForWindow(NoticeTitle) == 0)
            return {};
        const QString message = Person_.ReadMessage(NoticeTitle);
        Person_.PressIn(NoticeTitle, {QStringLiteral("Return")});
        return message;
    }
};

QByteArray RandomBytes(quint32 seed) {
    QRandomGenerator random(seed);
    QByteArray bytes(4000, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return bytes;
}

} // namespace

TEST_F(StoredSettings, HoldsEverySettingInItsOrderAfterTheFirstExit) {
    ASSERT_TRUE(QFile::remove(SettingsFile()));
    ASSERT_TRUE(StartAndLeave());
    EXPECT_EQ(BytesOf(SettingsFile()), BytesOf(QStringLiteral(QUILLBOX_FIRST_SETTINGS)));
}

TEST_F(StoredSettings, KeepsCommentsOtherSectionsAndTheLetterCaseOfItsKeys) {
    WriteSettings("; mis ajustes\r\n[Otro]\r\nFont=Arial\r\n\r\n[QUILLBOX]\r\nTABSIZE=8\r\n"
                  "; letra\r\nfontsize=11.5\r\nMio=1\r\n\r\n[Fin]\r\nx=y\r\n");
    ASSERT_TRUE(StartAndLeave());
    const QByteArray after = BytesOf(SettingsFile());
    EXPECT_TRUE(after.startsWith("; mis ajustes\r\n[Otro]\r\nFont=Arial\r\n\r\n[QUILLBOX]\r\n"
                                 "TABSIZE=8\r\n; letra\r\nfontsize=12\r\nMio=1\r\n"))
        << after.constData();
    EXPECT_TRUE(after.endsWith("[Fin]\r\nx=y\r\n")) << after.constData();
    EXPECT_TRUE(after.contains("ShowTypes=1\r\n")) << after.constData();
    EXPECT_FALSE(after.contains("TabSize=")) << after.constData();
}

TEST_F(StoredSettings, WithAByteTooLargeStopsTheStart) {
    WriteSettings("[Quillbox]\r\nFontSize=300\r\n");
    EXPECT_EQ(ErrorAtStart(),
              QStringLiteral("Se ha producido el error 6 en tiempo de ejecución:\n\n"
                             "Desbordamiento."));
    ASSERT_TRUE(Run_.WaitForEnd());
    EXPECT_FALSE(Run_.HasCrashed());
    EXPECT_EQ(Run_.ExitCode(), 1);
    EXPECT_FALSE(Person_.IsWindowThere(MainTitle));
    EXPECT_EQ(BytesOf(SettingsFile()), "[Quillbox]\r\nFontSize=300\r\n");
}

TEST_F(StoredSettings, OfRandomBytesNeverCrashesTheProgram) {
    for (const quint32 seed : {1U, 2U, 3U}) {
        SCOPED_TRACE(seed);
        WriteSettings(RandomBytes(seed));
        ProgramRun run(ProgramFile(QString()));
        ASSERT_TRUE(run.Start());
        ASSERT_TRUE(Press({QStringLiteral("ctrl+q")}));
        ASSERT_TRUE(run.WaitForEnd());
        EXPECT_FALSE(run.HasCrashed());
        EXPECT_EQ(run.ExitCode(), 0);
        EXPECT_TRUE(BytesOf(SettingsFile()).contains("ShowTypes=1"));
    }
}

TEST_F(StoredSettings, OfRandomValuesStartsTheProgramOrEndsItWithTheOverflowError) {
    for (const quint32 seed : {4U, 5U, 6U}) {
        SCOPED_TRACE(seed);
        QRandomGenerator random(seed);
        QByteArray settings = "[Quillbox]\r\n";
        for (const char *key : {"KeywordsColor", "TextStyle", "FontSize", "TabSize", "LineNumbers"})
            settings += key + ('=' + RandomBytes(random.generate()).left(20)) + "\r\n";
        WriteSettings(settings);
        ProgramRun run(ProgramFile(QString()));
        ASSERT_TRUE(run.Start());
        bool error = false;
        ASSERT_TRUE(WaitUntil([&] {
            error = Person_.IsWindowThere(NoticeTitle);
            return error || Person_.IsWindowThere(MainTitle);
        }));
        ASSERT_TRUE(error ? Person_.PressIn(NoticeTitle, {QStringLiteral("Return")})
                          : Press({QStringLiteral("ctrl+q")}));
        ASSERT_TRUE(run.WaitForEnd());
        EXPECT_FALSE(run.HasCrashed());
        EXPECT_EQ(run.ExitCode(), error ? 1 : 0);
    }
}

} // namespace Quillbox
