// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Quillbox {

struct CommandLine {
    std::string SourcePath;
    bool AsksForExecutable = false; // -o was given
};

// What a run answers. Everything is for standard output: the editor reads nothing else.
struct Answer {
    int ExitCode;
    std::string Output; // Windows-1252, lines end with CR LF
};

// The arguments without the program's own name; nothing when they are not
// "[-o EXECUTABLE] SOURCE".
std::optional<CommandLine> ParseCommandLine(std::span<const char *const> arguments);

Answer DescribeUsage();
Answer DescribeUnreadable(const CommandLine &commandLine);
Answer DescribeSource(const CommandLine &commandLine, std::string_view source);

} // namespace Quillbox
