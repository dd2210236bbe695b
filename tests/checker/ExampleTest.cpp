// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/TestFiles.h"
#include "fakes/SourceTree.h"

#include <gtest/gtest.h>
#include <sstream>

namespace Quillbox {

namespace {

constexpr std::string_view WithMistake = "09_con_un_error.prg";

std::vector<std::string> LinesOf(const std::string &text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line + "\n");
    return lines;
}

bool EndsABlock(std::string line) {
    line.erase(0, line.find_first_not_of(" \t"));
    for (const char *word : {"EndIf", "Next", "Wend", "Until", "Forever", "End "})
        if (line.starts_with(word))
            return true;
    return false;
}

std::string Joined(const std::vector<std::string> &lines, std::size_t without) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (i != without)
            text += lines[i];
    return text;
}

} // namespace

TEST(Examples, PassExceptTheOneWithAMistake) {
    const auto programs = ExamplePrograms();
    ASSERT_EQ(programs.size(), 9U);
    for (const auto &program : programs)
        if (program.filename() != WithMistake) {
            EXPECT_EQ(Shown(FindStructureMistake(ReadBytes(program))), "ninguno") << program;
        }
}

TEST(Examples, ShowOneMistakeBeforeTheLastLine) {
    const std::string source = ReadBytes(SourceTree() / "examples" / WithMistake);
    EXPECT_EQ(Shown(FindStructureMistake(source)),
              "28: \"Wend\" no cierra el \"If\" de la línea 11");
}

TEST(Examples, FailWithoutAnyOneOfTheirBlockEnds) {
    int blockEnds = 0;
    for (const auto &program : ExamplePrograms()) {
        const std::vector<std::string> lines = LinesOf(ReadBytes(program));
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (EndsABlock(lines[i])) {
                ++blockEnds;
                EXPECT_TRUE(FindStructureMistake(Joined(lines, i))) << program << " line " << i + 1;
            }
    }
    EXPECT_GT(blockEnds, 30);
}

TEST(Examples, EndEveryLineWithCrLf) {
    for (const auto &program : ExamplePrograms())
        for (const std::string &line : LinesOf(ReadBytes(program)))
            EXPECT_TRUE(line.ends_with("\r\n")) << program << ": " << line;
}

} // namespace Quillbox
