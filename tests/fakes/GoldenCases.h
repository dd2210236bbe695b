// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/AnsiText.h"
#include "fakes/SourceTree.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace Quillbox {

inline std::filesystem::path GoldenFolder(const std::string &room) {
    return SourceTree() / "tests/data" / room;
}

/// The names of the folders with cases of a room, sorted.
inline std::vector<std::string> GoldenCases(const std::string &room) {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(GoldenFolder(room)))
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

inline std::string ReadBytes(const std::filesystem::path &file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline QString ReadAnsi(const std::filesystem::path &file) {
    return FromAnsi(QByteArray::fromStdString(ReadBytes(file)));
}

} // namespace Quillbox
