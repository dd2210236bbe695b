// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/TextItems.h"

#include "fakes/CallLog.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

struct Case {
    const char *What;
    QString Text;
    QStringList Parts;
};

TEST(FreeFormatItems, EndAtCommasAndLineEnds) {
    const Case cases[] = {
        {"empty text", "", {}},
        {"one item", "Print", {"Print"}},
        {"LF", "Print\nInput\n", {"Print", "Input"}},
        {"CR LF", "Print\r\nInput\r\n", {"Print", "Input"}},
        {"CR", "Print\rInput\r", {"Print", "Input"}},
        {"no line end at the end", "Print\r\nInput", {"Print", "Input"}},
        {"comma", "Print,Input", {"Print", "Input"}},
        {"comma and line end", "Print,Input\r\nCls\r\n", {"Print", "Input", "Cls"}},
        {"nothing between commas", "Print,,Input", {"Print", "", "Input"}},
        {"comma at a line's start", ",Print", {"", "Print"}},
        {"comma at a line's end", "Print,\r\nInput", {"Print", "", "Input"}},
        {"comma at a line's end, LF", "Print,\nInput", {"Print", "", "Input"}},
        {"blank line", "Print\r\n\r\nInput\r\n", {"Print", "", "Input"}},
        {"a line end alone", "\n", {""}},
        {"blank last line", "Print\n\n", {"Print", ""}},
        {"blank first line", "\nPrint", {"", "Print"}},
        {"LF CR is two line ends", "Print\n\rInput", {"Print", "", "Input"}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(FreeFormatItems(one.Text), one.Parts) << one.What;
}

TEST(FreeFormatItems, LoseTheirLeadingBlanksOnly) {
    const Case cases[] = {
        {"blank behind a comma", "Print, Input", {"Print", "Input"}},
        {"blanks and tabs", " \t Print,\t Input", {"Print", "Input"}},
        {"blanks inside", "End If\nElse If", {"End If", "Else If"}},
        {"blanks at the end", "Print  \nInput", {"Print  ", "Input"}},
        {"blanks alone", "  \nInput", {"", "Input"}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(FreeFormatItems(one.Text), one.Parts) << one.What;
}

TEST(FreeFormatItems, RunToTheNextQuoteWhenTheyBeginWithOne) {
    const Case cases[] = {
        {"quotes", "\"Print\"", {"Print"}},
        {"comma inside", "\"Print,Input\",Cls", {"Print,Input", "Cls"}},
        {"leading blanks kept inside", "\"  Print\"", {"  Print"}},
        {"blanks before the quote", "  \"Print\"\nCls", {"Print", "Cls"}},
        {"line end inside", "\"Print\nInput\"\nCls", {"Print\nInput", "Cls"}},
        {"empty quotes", "\"\",Cls", {"", "Cls"}},
        {"quote that nothing closes", "Cls\n\"Print\nInput", {"Cls", "Print\nInput"}},
        {"lone quote at the end", "Cls\n\"", {"Cls", ""}},
        {"quote inside an item", "Pr\"int\",Cls", {"Pr\"int\"", "Cls"}},
        {"blanks behind the quote", "\"Print\"  ,Cls\r\nEnd", {"Print", "Cls", "End"}},
        {"CR LF behind the quote", "\"Print\"\r\n\"Cls\"\r\n", {"Print", "Cls"}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(FreeFormatItems(one.Text), one.Parts) << one.What;
}

TEST(WholeLines, EndAtAnyLineEnd) {
    const Case cases[] = {
        {"empty text", "", {}},
        {"one line", "uno", {"uno"}},
        {"LF", "uno\ndos\n", {"uno", "dos"}},
        {"CR LF", "uno\r\ndos\r\n", {"uno", "dos"}},
        {"CR", "uno\rdos\r", {"uno", "dos"}},
        {"no line end at the end", "uno\ndos", {"uno", "dos"}},
        {"a line end alone", "\n", {""}},
        {"blank lines", "\nuno\n\n\ndos\n\n", {"", "uno", "", "", "dos", ""}},
        {"LF CR is two line ends", "uno\n\rdos", {"uno", "", "dos"}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(WholeLines(one.Text), one.Parts) << one.What;
}

TEST(WholeLines, KeepCommasQuotesAndBlanks) {
    const QString line = "  Print \"hola\", 1, \"adiós\"  ";

    EXPECT_EQ(WholeLines(line + "\r\n"), QStringList{line});
}

} // namespace
} // namespace Quillbox
