// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/CommandLine.h"

#include <gtest/gtest.h>

namespace Quillbox {

namespace {

using Calls = std::vector<std::pair<QString, QString>>;

Calls CallsOf(const QString &commandLine) {
    Calls calls;
    for (const ProgramCall &call : ProgramCalls(commandLine))
        calls.emplace_back(call.Program, call.Arguments);
    return calls;
}

} // namespace

TEST(CommandLine, SplitsArguments) {
    const std::pair<const char *, QStringList> cases[] = {
        {R"()", {}},
        {R"(   )", {}},
        {R"(a)", {"a"}},
        {R"( a  b	c )", {"a", "b", "c"}},
        {R"("a b" c)", {"a b", "c"}},
        {R"(a" b"c)", {"a bc"}},
        {R"("")", {""}},
        {R"(a "" b)", {"a", "", "b"}},
        {R"("sin fin)", {"sin fin"}},
        {R"("sin fin \)", {R"(sin fin \)"}},
        {R"(C:\juego\a.prg)", {R"(C:\juego\a.prg)"}},
        {R"("C:\mi juego\\" b)", {R"(C:\mi juego\)", "b"}},
        {R"("C:\mi juego\" b)", {R"(C:\mi juego" b)"}},
        {R"(a\\b)", {R"(a\\b)"}},
        {R"(a\"b)", {R"(a"b)"}},
        {R"(a\\"b c")", {R"(a\b c)"}},
        {R"(a\\\"b)", {R"(a\"b)"}},
        {R"(a\\\\"b c")", {R"(a\\b c)"}},
        {R"(\)", {R"(\)"}},
        {R"("a""b")", {R"(a"b)"}},
        {R"("a"" b" c)", {R"(a" b)", "c"}},
        {R"("""a""")", {R"("a")"}},
        {"año €", {"año", "€"}},
    };
    for (const auto &[text, arguments] : cases)
        EXPECT_EQ(SplitArguments(text), arguments) << text;
}

TEST(CommandLine, TakesAQuotedFirstWordForTheProgram) {
    EXPECT_EQ(CallsOf(R"("C:\mi juego\fxc.exe" -o a)"),
              (Calls{{R"(C:\mi juego\fxc.exe)", " -o a"}}));
    EXPECT_EQ(CallsOf(R"("fxc")"), (Calls{{"fxc", ""}}));
    EXPECT_EQ(CallsOf(R"(  "fxc"-o)"), (Calls{{"fxc", "-o"}}));
    EXPECT_EQ(CallsOf(R"("sin fin)"), (Calls{{"sin fin", ""}}));
}

TEST(CommandLine, TriesTheProgramUpToEachBlankWhenItIsNotQuoted) {
    EXPECT_EQ(CallsOf(R"(C:\mi juego\fxc.exe  -o)"), (Calls{{R"(C:\mi)", R"( juego\fxc.exe  -o)"},
                                                            {R"(C:\mi juego\fxc.exe)", "  -o"},
                                                            {R"(C:\mi juego\fxc.exe  -o)", ""}}));
    EXPECT_EQ(CallsOf(" fxc\t-o "), (Calls{{"fxc", "\t-o "}, {"fxc\t-o", " "}}));
}

TEST(CommandLine, HasNoProgramWhenItIsEmpty) {
    for (const char *text : {"", "  \t", "\"\"", "\"\" -o", "\""})
        EXPECT_EQ(CallsOf(text), Calls()) << text;
}

} // namespace Quillbox
