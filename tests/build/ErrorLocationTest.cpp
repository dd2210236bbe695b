// SPDX-License-Identifier: GPL-3.0-or-later
// How an error line is found in a log and cut into its parts.
#include "build/MessageShapes.h"
#include "fakes/CallLog.h"
#include "fakes/ErrorNumber.h"
#include "fakes/TestRow.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

struct LogRow : TestRow {
    const char *Log;
    const char *ErrorLine;
};

class LogWithAnError : public testing::TestWithParam<LogRow> {};

TEST_P(LogWithAnError, GivesTheFirstLineThatBeginsWithThePhrase) {
    const auto line = FindErrorLine(QString::fromUtf8(GetParam().Log));
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(*line, QString::fromUtf8(GetParam().ErrorLine));
}

INSTANTIATE_TEST_SUITE_P(
    Logs, LogWithAnError,
    testing::Values(
        LogRow{"WithoutALineEnd", "Error in file a at line 1:x", "Error in file a at line 1:x"},
        LogRow{"WithACarriageReturn", "Error in file a\r\n", "Error in file a"},
        LogRow{"WithALineFeed", "Error in file a\n", "Error in file a"},
        LogRow{"BehindOtherLines", "ruido\r\n\r\nError in file b\r\n", "Error in file b"},
        LogRow{"BeforeAnother", "Error in file a\r\nError in file b\r\n", "Error in file a"},
        LogRow{"BehindOneWithABlank", " Error in file a\r\nError in file b", "Error in file b"},
        LogRow{"BehindOneInTheMiddle", "x Error in file a\nError in file b", "Error in file b"},
        LogRow{"WithBlanksAtItsEnd", "Error in file a  \t\r\n", "Error in file a  \t"},
        LogRow{"WithALongerWord", "Error in files", "Error in files"},
        LogRow{"WithNothingMore", "Error in file", "Error in file"}),
    RowName);

struct TextRow : TestRow {
    const char *Text;
};

class LogWithoutAnError : public testing::TestWithParam<TextRow> {};

TEST_P(LogWithoutAnError, GivesNoLine) {
    EXPECT_EQ(FindErrorLine(QString::fromUtf8(GetParam().Text)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Logs, LogWithoutAnError,
                         testing::Values(TextRow{"Empty", ""}, TextRow{"OneEmptyLine", "\r\n"},
                                         TextRow{"Success", "Listo\r\n"},
                                         TextRow{"BlankBeforeIt", " Error in file a at line 1:x"},
                                         TextRow{"TabBeforeIt", "\tError in file a at line 1:x"},
                                         TextRow{"NumberBeforeIt", "1 Error in file a at line 1:x"},
                                         TextRow{"SmallLetters", "error in file a at line 1:x"},
                                         TextRow{"Capitals", "ERROR IN FILE a at line 1:x"},
                                         TextRow{"CutShort", "Error in fil"},
                                         TextRow{"OverTwoLines", "Error\r\n in file a at line 1:x"},
                                         TextRow{"RunnersError", "Error: CreateProcess failed. 2"}),
                         RowName);

struct CutRow : TestRow {
    const char *ErrorLine;
    const char *FileText;
    const char *LineText;
};

class WholeErrorLine : public testing::TestWithParam<CutRow> {};

TEST_P(WholeErrorLine, IsCutIntoFileAndLine) {
    const ErrorLocation location = LocateError(QString::fromUtf8(GetParam().ErrorLine));
    EXPECT_EQ(location.FileText, QString::fromUtf8(GetParam().FileText));
    EXPECT_EQ(location.LineText, QString::fromUtf8(GetParam().LineText));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WholeErrorLine,
    testing::Values(
        CutRow{"DriveLetter", "Error in file C:\\juegos\\x.bb at line 12:Expecting expression",
               "C:\\juegos\\x.bb", " 12"},
        CutRow{"RelativeName",
               "Error in file 01_no_semicolon.prg at line 6: \";\" expected (\"SAY\")",
               "01_no_semicolon.prg", " 6"},
        CutRow{"ColonInNameAndMessage",
               "Error in file C:\\juegos\\mi juego: 2.prg at line 12: "
               "Unknown identifier (\"X:Y\")",
               "C:\\juegos\\mi juego: 2.prg", " 12: Unknown identifier (\"X"},
        CutRow{"LineZero", "Error in file main.prg at line 0: END expected (EOF)", "main.prg",
               " 0"},
        CutRow{"QuotesStay", "Error in file \"mi juego.prg\" at line 3: x", "\"mi juego.prg\"",
               " 3"},
        CutRow{"BlanksStay", "Error in file  juego.prg  at line 3: x", " juego.prg ", " 3"},
        CutRow{"CharacterBehindThePhraseGoes", "Error in files juego.prg at line 3: x",
               " juego.prg", " 3"},
        CutRow{"AnyCharacterBehindThePhraseGoes", "Error in file:juego.prg at line 3: x",
               "juego.prg", " 3"},
        CutRow{"NameHoldsTheMark", "Error in file C:\\look at line\\a.prg at line 3: x", "C:\\look",
               "\\a.prg at line 3"},
        CutRow{"NameHoldsTheMarkInAWord", "Error in file what line.prg at line 3: x",
               "what line.prg", ".prg at line 3"},
        CutRow{"MessageHoldsTheMark", "Error in file a at line 1: got at line 2: x", "a",
               " 1: got at line 2"},
        CutRow{"ColonAtTheEnd", "Error in file año.prg at line 3: ñ:", "año.prg", " 3: ñ"},
        CutRow{"BlankForTheNumber", "Error in file a at line :x", "a", " "},
        CutRow{"NothingForTheNumber", "Error in file a at line:x", "a", ""},
        CutRow{"LongerMark", "Error in file a at lines 4: x", "a", "s 4"},
        CutRow{"EmptyName", "Error in file  at line 4: x", "", " 4"}),
    RowName);

class IncompleteErrorLine : public testing::TestWithParam<TextRow> {};

TEST_P(IncompleteErrorLine, EndsInErrorFive) {
    EXPECT_EQ(ErrorNumberOf([] { LocateError(QString::fromUtf8(GetParam().Text)); }), 5);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, IncompleteErrorLine,
    testing::Values(TextRow{"OnlyThePhrase", "Error in file"},
                    TextRow{"OnlyTheName", "Error in file a.prg"},
                    TextRow{"NoMark", "Error in file a.prg: x"},
                    TextRow{"OtherMark", "Error in file a.prg on line 3: x"},
                    TextRow{"NoBlankBeforeTheMark", "Error in file a.prgat line 3: x"},
                    TextRow{"MarkInCapitals", "Error in file a.prg AT LINE 3: x"},
                    TextRow{"NoRoomForAName", "Error in file at line 3: x"},
                    TextRow{"NoColon", "Error in file a.prg at line 3"},
                    TextRow{"ColonOnlyInTheName", "Error in file C:\\a.prg at line 3"},
                    TextRow{"ColonOnlyBeforeTheMark", "Error in file a: at line"}),
    RowName);

} // namespace
} // namespace Quillbox
