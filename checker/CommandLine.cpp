// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/CommandLine.h"

#include "checker/StructureMistake.h"
#include "checker/Tokenizer.h"
#include "checker/Windows1252.h"

#include <initializer_list>

namespace Quillbox {

namespace {

constexpr int NoMistake = 0;
constexpr int HasMistake = 1;
constexpr int NotChecked = 2;

Answer AnswerWith(int exitCode, std::initializer_list<std::string_view> lines) {
    Answer answer{exitCode, {}};
    for (const std::string_view line : lines)
        answer.Output += ToWindows1252(line) + "\r\n";
    return answer;
}

std::string CountedLines(int count) {
    return std::to_string(count) + (count == 1 ? " línea" : " líneas");
}

} // namespace

std::optional<CommandLine> ParseCommandLine(std::span<const char *const> arguments) {
    CommandLine commandLine;
    if (arguments.size() == 3 && arguments.front() == std::string_view("-o")) {
        commandLine.AsksForExecutable = true;
        arguments = arguments.last(1);
    }
    if (arguments.size() != 1 || arguments.front()[0] == '-')
        return std::nullopt;
    commandLine.SourcePath = arguments.front();
    return commandLine;
}

Answer DescribeUsage() {
    return AnswerWith(NotChecked,
                      {"Uso: Checker [-o EJECUTABLE] PROGRAMA",
                       "Comprueba la estructura de un programa de Blitz3D. No es un compilador:",
                       "con -o comprueba lo mismo y no crea ningún ejecutable."});
}

Answer DescribeUnreadable(const CommandLine &commandLine) {
    return AnswerWith(NotChecked, {"No se puede leer el archivo " + commandLine.SourcePath});
}

Answer DescribeSource(const CommandLine &commandLine, std::string_view source) {
    if (const auto mistake = FindStructureMistake(source))
        return AnswerWith(HasMistake,
                          {"Error in file " + commandLine.SourcePath + " at line " +
                           std::to_string(mistake->LineNumber) + ": " + mistake->Message});
    const std::string result = "Comprobador de estructura: " + CountedLines(CountLines(source)) +
                               ", ningún error de estructura.";
    if (!commandLine.AsksForExecutable)
        return AnswerWith(NoMistake, {result});
    return AnswerWith(NoMistake,
                      {result, "No se ha creado ningún ejecutable: para eso hace falta el "
                               "compilador."});
}

} // namespace Quillbox
