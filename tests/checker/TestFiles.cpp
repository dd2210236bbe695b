// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/TestFiles.h"

#include "fakes/SourceTree.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace Quillbox {

std::string ReadBytes(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const std::filesystem::path &path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::vector<std::filesystem::path> ExamplePrograms() {
    std::vector<std::filesystem::path> programs;
    for (const auto &entry : std::filesystem::directory_iterator(SourceTree() / "examples"))
        if (entry.path().extension() == ".prg")
            programs.push_back(entry.path());
    std::ranges::sort(programs);
    return programs;
}

std::string Shown(const std::optional<StructureMistake> &mistake) {
    return mistake ? std::to_string(mistake->LineNumber) + ": " + mistake->Message : "ninguno";
}

} // namespace Quillbox
