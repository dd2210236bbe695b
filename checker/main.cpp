// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/CommandLine.h"
#include "checker/StandardOutput.h"

#include <array>
#include <cstddef>
#include <fstream>
#include <optional>
#include <span>
#include <string>

namespace {

std::optional<std::string> ReadWholeFile(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string text;
    std::array<char, 65536> part;
    do {
        file.read(part.data(), part.size());
        text.append(part.data(), static_cast<std::size_t>(file.gcount()));
    } while (file);
    if (file.bad())
        return std::nullopt;
    return text;
}

Quillbox::Answer AnswerTo(std::span<const char *const> arguments) {
    const auto commandLine = Quillbox::ParseCommandLine(arguments);
    if (!commandLine)
        return Quillbox::DescribeUsage();
    const auto source = ReadWholeFile(commandLine->SourcePath);
    return source ? Quillbox::DescribeSource(*commandLine, *source)
                  : Quillbox::DescribeUnreadable(*commandLine);
}

} // namespace

int main(int argc, char **argv) {
    const std::span<const char *const> all(argv, static_cast<std::size_t>(argc));
    const Quillbox::Answer answer = AnswerTo(all.empty() ? all : all.subspan(1));
    Quillbox::WriteToStandardOutput(answer.Output);
    return answer.ExitCode;
}
