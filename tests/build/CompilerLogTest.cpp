// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/CompilerLog.h"

#include "BuildProgram.h"
#include "fakes/TestRow.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char *const AnError = "Error in file /j/juego.prg at line 12:Expecting expression";

class ReadingTheLog : public BuildProgram {
  protected:
    void Read(const char *output) { Reader.ShowCompilerErrors(QString::fromUtf8(output)); }
    std::vector<std::string> Jumps() const {
        return Log.CallsOf(
            {"editor.SetHighlightedLine", "editor.SetTopIndex", "editor.SetCaretPos"});
    }
};

TEST_F(ReadingTheLog, KeepsTheOutputInTheProgramFolderBehindADoubledSeparator) {
    Read("Listo\r\n");
    ASSERT_EQ(Stored.Contents.size(), 1U);
    EXPECT_EQ(Stored.Contents.begin()->first,
              QString("/quillbox") + PathSeparator + PathSeparator + QString("CLog.tmp"));
}

TEST_F(ReadingTheLog, WritesExactlyOneMoreLineEndThanTheOutputHas) {
    Read("uno\r\ndos\r\n");
    EXPECT_EQ(Stored.Contents[LogFile], QByteArray("uno\r\ndos\r\n\r\n"));
}

TEST_F(ReadingTheLog, WritesTheLineEndEvenBehindAnEmptyOutput) {
    Read("");
    EXPECT_EQ(Stored.Contents[LogFile], QByteArray("\r\n"));
}

TEST_F(ReadingTheLog, WritesTheOutputAsAnsi) {
    Read("año");
    EXPECT_EQ(Stored.Contents[LogFile], QByteArray("a\xF1o\r\n"));
}

TEST_F(ReadingTheLog, ReplacesTheOutputOfTheLastCompilation) {
    Read("una salida mucho más larga");
    Read("corta");
    EXPECT_EQ(Stored.Contents[LogFile], QByteArray("corta\r\n"));
}

TEST_F(ReadingTheLog, ReadsTheFileBack) {
    Read("Listo");
    EXPECT_THAT(Log.Calls(), ElementsAre("files.Write " + LogFile.toStdString(),
                                         "files.Read " + LogFile.toStdString()));
}

TEST_F(ReadingTheLog, ChangesOnlyTheFlagWhenNoLineReportsAnError) {
    Reader.CompileErrorFound = true;
    Read("Compilando\r\n Error in file /j/juego.prg at line 3: x\r\n"
         "aviso: Error in file /j/juego.prg at line 4: x\r\n");
    EXPECT_FALSE(Reader.CompileErrorFound);
    EXPECT_THAT(Log.CallsOf({"editor.", "window.", "tabs.", "dialogs.", "main."}), IsEmpty());
}

TEST_F(ReadingTheLog, HighlightsThenScrollsThenPutsTheCaretThenShowsTheLine) {
    Read(AnError);
    EXPECT_THAT(Log.CallsOf({"editor.", "dialogs."}),
                ElementsAre("editor.SetHighlightedLine 11", "editor.SetTopIndex 11",
                            "editor.SetCaretPos 11 0",
                            std::string("dialogs.ShowMessage ") + AnError));
}

TEST_F(ReadingTheLog, ShowsTheWholeErrorLineWithoutAnIcon) {
    Read("ruido\r\nError in file /j/juego.prg at line 12: falta \";\"  \r\nmás ruido");
    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &message = Questions.Messages[0];
    EXPECT_EQ(message.Text, QString("Error in file /j/juego.prg at line 12: falta \";\"  "));
    EXPECT_EQ(message.Caption, QString("Quillbox"));
    EXPECT_EQ(message.Icon, MessageIcon::None);
    EXPECT_EQ(message.Buttons, MessageButtons::Ok);
}

TEST_F(ReadingTheLog, SetsTheFlagOnceItHasLocatedAnError) {
    EXPECT_FALSE(Reader.CompileErrorFound);
    Read(AnError);
    EXPECT_TRUE(Reader.CompileErrorFound);
}

TEST_F(ReadingTheLog, ClearsTheFlagWhenTheNextLogHasNoError) {
    Read(AnError);
    Read("Listo");
    EXPECT_FALSE(Reader.CompileErrorFound);
}

TEST_F(ReadingTheLog, SetsTheFlagOnlyAfterTheMessage) {
    struct FlagWatcher : FakeDialogs {
        FlagWatcher(CallLog &log, const CompilerLog *&reader)
            : FakeDialogs(log)
            , Watched(reader) {}
        MessageAnswer ShowMessage(const Message &message) override {
            FlagDuringMessage = Watched->CompileErrorFound;
            return FakeDialogs::ShowMessage(message);
        }
        const CompilerLog *&Watched;
        bool FlagDuringMessage = true;
    };
    const CompilerLog *watched = nullptr;
    FlagWatcher watcher(Log, watched);
    CompilerLog reader(ProgramFolder, Registry, Documents, Stored, watcher);
    watched = &reader;

    reader.ShowCompilerErrors(QString::fromUtf8(AnError));

    EXPECT_FALSE(watcher.FlagDuringMessage);
    EXPECT_TRUE(reader.CompileErrorFound);
}

TEST_F(ReadingTheLog, ActsOnTheFirstOfTwoErrorLines) {
    Read("Error in file /j/juego.prg at line 3: x\r\nError in file /j/juego.prg at line 9: y\r\n");
    EXPECT_THAT(Jumps(), ElementsAre("editor.SetHighlightedLine 2", "editor.SetTopIndex 2",
                                     "editor.SetCaretPos 2 0"));
    EXPECT_EQ(Questions.Messages.size(), 1U);
}

TEST_F(ReadingTheLog, OpensTheNamedFileBeforeItGoesToTheLine) {
    Disk.Texts[QStringLiteral("/j/otro.prg")] = QStringLiteral("x");
    Read("Error in file /j/otro.prg at line 3: x");
    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 2);
    const auto calls = Log.CallsOf({"editor.OpenFile", "editor.SetHighlightedLine"});
    EXPECT_THAT(calls, ElementsAre("editor.OpenFile /j/otro.prg", "editor.SetHighlightedLine 2"));
}

TEST_F(ReadingTheLog, ActivatesANamedFileThatIsOpenInAnyLetterCase) {
    Open({"/j/otro.prg"});
    Read("Error in file /J/JUEGO.PRG at line 3: x");
    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
}

TEST_F(ReadingTheLog, OpensTheFileFromTheHelpPage) {
    Registry.CurrentIndex = 0;
    Tabs.Selected = 1;
    Read(AnError);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Jumps().size(), 3U);
}

TEST_F(ReadingTheLog, GoesToTheLineOfTheActiveWindowWhenTheFileDoesNotExist) {
    Read("Error in file /j/no_hay.prg at line 3: x");
    EXPECT_THAT(Jumps(), ElementsAre("editor.SetHighlightedLine 2", "editor.SetTopIndex 2",
                                     "editor.SetCaretPos 2 0"));
    EXPECT_TRUE(Reader.CompileErrorFound);
}

TEST_F(ReadingTheLog, GoesToTheLineOfTheActiveDocumentWhenNoMoreCanBeOpened) {
    Registry.DocumentCount = DocumentRegistry::Capacity;
    Read("Error in file /j/otro.prg at line 3: x");
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Jumps().size(), 3U);
    EXPECT_EQ(Questions.Messages.size(), 2U); // the refusal and the error line
}

TEST_F(ReadingTheLog, AsksForTheFileWhenTheNameIsEmpty) {
    Read("Error in file  at line 3: x");
    EXPECT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_EQ(Jumps().size(), 3U);
}

struct LineRow : TestRow {
    const char *LineText; ///< what stands between "at line" and the last colon
    int Line;             ///< 0-based; -1 without a number
};

class LineTextOfAnError : public ReadingTheLog, public testing::WithParamInterface<LineRow> {};

TEST_P(LineTextOfAnError, GivesItsLeadingNumberLessOne) {
    const std::string error =
        std::string("Error in file /j/juego.prg at line") + GetParam().LineText + ":x";
    const std::string line = std::to_string(GetParam().Line);

    Read(error.c_str());

    EXPECT_THAT(Jumps(),
                ElementsAre("editor.SetHighlightedLine " + line, "editor.SetTopIndex " + line,
                            "editor.SetCaretPos " + line + " 0"));
    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_TRUE(Reader.CompileErrorFound);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LineTextOfAnError,
    testing::Values(LineRow{"BehindABlank", " 12", 11}, LineRow{"OfTheFirstLine", " 1", 0},
                    LineRow{"WithoutABlank", "12", 11}, LineRow{"AmongBlanks", "    12  ", 11},
                    LineRow{"BehindATab", "\t12", 11}, LineRow{"WithZeros", " 007", 6},
                    LineRow{"BeforeAMessage", " 12: falta", 11},
                    LineRow{"BeforeLetters", " 12abc", 11}, LineRow{"BeforeAnother", " 12 13", 11},
                    LineRow{"BeforeAPoint", " 3.7", 2}, LineRow{"BeforeAnExponent", " 2e3", 1},
                    // Without a number at its start the text counts as line 0.
                    LineRow{"OfNothing", "", -1}, LineRow{"OfABlank", " ", -1},
                    LineRow{"Zero", " 0", -1}, LineRow{"BehindALetter", " x12", -1},
                    LineRow{"OfAWord", " doce", -1}, LineRow{"BehindAColon", ": 12", -1},
                    LineRow{"InBrackets", " (12)", -1}, LineRow{"BehindAMinus", " -5", -1},
                    LineRow{"BehindAPlus", " +5", -1}, LineRow{"Hexadecimal", " &H10", -1},
                    // Behind every text the last line that can be named is meant.
                    LineRow{"LargestThatCanBeNamed", " 2147483647", 2147483646},
                    LineRow{"TooLargeForALine", " 99999999999", 2147483647}),
    RowName);

TEST_F(ReadingTheLog, EndsInErrorFiveWhenTheErrorLineLacksItsParts) {
    Reader.CompileErrorFound = true;
    EXPECT_EQ(ErrorNumberOf([this] { Read("Error in file /j/otro.prg"); }), 5);
    EXPECT_FALSE(Reader.CompileErrorFound);
    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_THAT(Questions.Messages, IsEmpty());
}

TEST_F(ReadingTheLog, DoesNotLookPastAnErrorLineThatLacksItsParts) {
    EXPECT_EQ(ErrorNumberOf(
                  [this] { Read("Error in file a\r\nError in file /j/juego.prg at line 3: x"); }),
              5);
    EXPECT_THAT(Jumps(), IsEmpty());
}

TEST_F(ReadingTheLog, EndsInErrorSeventyFiveWhenTheLogCannotBeWritten) {
    Stored.WritesFail = true;
    Reader.CompileErrorFound = true;
    EXPECT_EQ(ErrorNumberOf([this] { Read(AnError); }), 75);
    EXPECT_FALSE(Reader.CompileErrorFound);
    EXPECT_THAT(Questions.Messages, IsEmpty());
}

TEST_F(ReadingTheLog, EndsInErrorSeventyFiveWhenTheLogCannotBeReadBack) {
    struct UnreadableFiles : FakeFiles {
        using FakeFiles::FakeFiles;
        std::optional<QByteArray> Read(const QString &) override { return std::nullopt; }
    };
    UnreadableFiles unreadable(Log);
    CompilerLog reader(ProgramFolder, Registry, Documents, unreadable, Questions);
    EXPECT_EQ(ErrorNumberOf([&] { reader.ShowCompilerErrors(QString::fromUtf8(AnError)); }), 75);
}

TEST_F(ReadingTheLog, SearchesWhatTheFileHolds) {
    struct OtherFiles : FakeFiles {
        using FakeFiles::FakeFiles;
        std::optional<QByteArray> Read(const QString &) override { return QByteArray(AnError); }
    };
    OtherFiles other(Log);
    CompilerLog reader(ProgramFolder, Registry, Documents, other, Questions);
    reader.ShowCompilerErrors(QStringLiteral("Listo"));
    EXPECT_TRUE(reader.CompileErrorFound);
}

} // namespace
} // namespace Quillbox
