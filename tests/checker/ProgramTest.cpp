// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/CommandLine.h"
#include "checker/TestFiles.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace Quillbox {

namespace {

std::string Quoted(const std::string &argument) {
    std::string quoted = "'";
    for (const char byte : argument)
        quoted += byte == '\'' ? "'\\''" : std::string(1, byte);
    return quoted + "'";
}

Answer RunChecker(const std::vector<std::string> &arguments) {
    std::string command = Quoted(STRUCTURE_CHECKER);
    for (const std::string &argument : arguments)
        command.append(" ").append(Quoted(argument));
    std::FILE *pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 4096> part;
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
        output.append(part.data(), count);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

// The real program, in a folder of its own.
class StructureCheckerProgram : public testing::Test {
  protected:
    StructureCheckerProgram() {
        std::string name = (std::filesystem::temp_directory_path() / "checker-XXXXXX").string();
        Folder_ = mkdtemp(name.data());
    }
    ~StructureCheckerProgram() override { std::filesystem::remove_all(Folder_); }

    std::string WriteSource(const std::string &name, std::string_view source) const {
        WriteBytes(Folder_ / name, source);
        return (Folder_ / name).string();
    }

    std::filesystem::path Folder_;
};

} // namespace

TEST_F(StructureCheckerProgram, PassesACorrectProgram) {
    const Answer answer = RunChecker({WriteSource("juego.bb", "Print \"x\"\r\nEnd\r\n")});
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output,
              "Comprobador de estructura: 2 l\xedneas, ning\xfan error de estructura.\r\n");
}

TEST_F(StructureCheckerProgram, ReportsAMistakeInOneLine) {
    const std::string path = WriteSource("juego.bb", "For i=1 To 3\r\nWend\r\n");
    const Answer answer = RunChecker({path});
    EXPECT_EQ(answer.ExitCode, 1);
    EXPECT_EQ(answer.Output, "Error in file " + path +
                                 " at line 2: \"Wend\" no cierra el \"For\" de la l\xednea 1\r\n");
}

TEST_F(StructureCheckerProgram, ShowsAPathWithBlanksColonsAndAccentsInTheCodePage) {
    WriteSource("mi año: juego 1.bb", "Next");
    const Answer answer = RunChecker({(Folder_ / "mi año: juego 1.bb").string()});
    EXPECT_EQ(answer.ExitCode, 1);
    EXPECT_EQ(answer.Output, "Error in file " + Folder_.string() +
                                 "/mi a\xf1o: juego 1.bb at line 1: \"Next\" sin \"For\"\r\n");
}

TEST_F(StructureCheckerProgram, ShowsAPathOfOtherBytesAsGiven) {
    const std::string path = WriteSource("a\xf1o 日本.bb", "Next");
    EXPECT_EQ(RunChecker({path}).Output,
              "Error in file " + path + " at line 1: \"Next\" sin \"For\"\r\n");
}

TEST_F(StructureCheckerProgram, WritesNoExecutable) {
    const std::string executable = (Folder_ / "juego.exe").string();
    const Answer answer = RunChecker({"-o", executable, WriteSource("juego.bb", "Print\n")});
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output,
              "Comprobador de estructura: 1 l\xednea, ning\xfan error de estructura.\r\n"
              "No se ha creado ning\xfan ejecutable: para eso hace falta el compilador.\r\n");
    EXPECT_FALSE(std::filesystem::exists(executable));
}

TEST_F(StructureCheckerProgram, ReportsTheMistakeAloneWithTheExecutableOption) {
    const std::string path = WriteSource("juego.bb", "Print (1\n");
    const Answer answer = RunChecker({"-o", "juego.exe", path});
    EXPECT_EQ(answer.ExitCode, 1);
    EXPECT_EQ(answer.Output, "Error in file " + path + " at line 1: falta \")\"\r\n");
}

TEST_F(StructureCheckerProgram, NamesAFileThatItCannotRead) {
    const std::string path = (Folder_ / "no está.bb").string();
    const Answer answer = RunChecker({path});
    EXPECT_EQ(answer.ExitCode, 2);
    EXPECT_EQ(answer.Output,
              "No se puede leer el archivo " + Folder_.string() + "/no est\xe1.bb\r\n");
}

TEST_F(StructureCheckerProgram, DoesNotTakeAFolderForAnEmptyProgram) {
    const Answer answer = RunChecker({Folder_.string()});
    EXPECT_EQ(answer.ExitCode, 2);
    EXPECT_EQ(answer.Output, "No se puede leer el archivo " + Folder_.string() + "\r\n");
}

TEST_F(StructureCheckerProgram, ExplainsItsArgumentsOnStandardOutput) {
    const Answer answer = RunChecker({"-o", "juego.exe"});
    EXPECT_EQ(answer.ExitCode, 2);
    EXPECT_EQ(answer.Output,
              "Uso: Checker [-o EJECUTABLE] PROGRAMA\r\n"
              "Comprueba la estructura de un programa de Blitz3D. No es un compilador:\r\n"
              "con -o comprueba lo mismo y no crea ning\xfan ejecutable.\r\n");
    EXPECT_EQ(RunChecker({}).Output, answer.Output);
}

TEST_F(StructureCheckerProgram, ChecksAnEmptyFile) {
    const Answer answer = RunChecker({WriteSource("juego.bb", "")});
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output,
              "Comprobador de estructura: 0 l\xedneas, ning\xfan error de estructura.\r\n");
}

} // namespace Quillbox
