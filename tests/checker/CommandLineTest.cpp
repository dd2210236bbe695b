// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/CommandLine.h"
#include "checker/Windows1252.h"

#include <gtest/gtest.h>
#include <vector>

namespace Quillbox {

namespace {

std::optional<CommandLine> Parsed(const std::vector<const char *> &arguments) {
    return ParseCommandLine(arguments);
}

} // namespace

TEST(CommandLine, TakesASourceAlone) {
    const auto parsed = Parsed({"juego.bb"});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->SourcePath, "juego.bb");
    EXPECT_FALSE(parsed->AsksForExecutable);
}

TEST(CommandLine, TakesAnExecutableBeforeTheSource) {
    const auto parsed = Parsed({"-o", "juego.exe", "juego.bb"});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->SourcePath, "juego.bb");
    EXPECT_TRUE(parsed->AsksForExecutable);
}

TEST(CommandLine, RefusesEverythingElse) {
    EXPECT_FALSE(Parsed({}));
    EXPECT_FALSE(Parsed({"-o"}));
    EXPECT_FALSE(Parsed({"-o", "juego.exe"}));
    EXPECT_FALSE(Parsed({"a.bb", "b.bb"}));
    EXPECT_FALSE(Parsed({"juego.bb", "-o", "juego.exe"}));
    EXPECT_FALSE(Parsed({"-x", "juego.exe", "juego.bb"}));
    EXPECT_FALSE(Parsed({"-o", "juego.exe", "-x"}));
    EXPECT_FALSE(Parsed({"-o", "a.exe", "b.bb", "c.bb"}));
}

TEST(Answer, NamesThePathTheLineAndTheMistakeInOneLine) {
    const Answer answer = DescribeSource({"a b.bb"}, "If a\nNext\n");
    EXPECT_EQ(answer.ExitCode, 1);
    EXPECT_EQ(answer.Output,
              "Error in file a b.bb at line 2: \"Next\" no cierra el \"If\" de la l\xednea 1\r\n");
}

TEST(Answer, CountsTheLinesOfACorrectProgram) {
    const Answer answer = DescribeSource({"a.bb"}, "Print\nPrint\n");
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output,
              "Comprobador de estructura: 2 l\xedneas, ning\xfan error de estructura.\r\n");
    EXPECT_EQ(DescribeSource({"a.bb"}, "Print").Output,
              "Comprobador de estructura: 1 l\xednea, ning\xfan error de estructura.\r\n");
}

TEST(Answer, SaysThatNoExecutableWasWritten) {
    const Answer answer = DescribeSource({"a.bb", true}, "Print\n");
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output,
              "Comprobador de estructura: 1 l\xednea, ning\xfan error de estructura.\r\n"
              "No se ha creado ning\xfan ejecutable: para eso hace falta el compilador.\r\n");
}

TEST(Answer, IsTheMistakeAloneWhenAnExecutableWasAskedFor) {
    EXPECT_EQ(DescribeSource({"a.bb", true}, "Next").Output,
              DescribeSource({"a.bb", false}, "Next").Output);
}

TEST(Windows1252, HoldsSpanishAndTheSpecialCharacters) {
    EXPECT_EQ(ToWindows1252("áéíóúüñ¿¡ÁÑ"), "\xe1\xe9\xed\xf3\xfa\xfc\xf1\xbf\xa1\xc1\xd1");
    EXPECT_EQ(ToWindows1252("€“”…Ÿ"), "\x80\x93\x94\x85\x9f");
}

TEST(Windows1252, LeavesOtherCharactersAndBytesAsTheyAre) {
    for (const char *text : {"plain", "日本", "Ω", "😀", "\xf1", "\xc3", "\xe2\x82", "\xe9t\xe9"})
        EXPECT_EQ(ToWindows1252(text), text);
}

} // namespace Quillbox
