// SPDX-License-Identifier: GPL-3.0-or-later
#include "checker/TestFiles.h"
#include "fakes/SourceTree.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace Quillbox {

namespace {

std::filesystem::path GoldenFolder() { return SourceTree() / "tests/data/checker"; }

std::vector<std::string> GoldenCases() {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(GoldenFolder()))
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

class GoldenProgram : public testing::TestWithParam<std::string> {};

} // namespace

TEST_P(GoldenProgram, HasTheExpectedFirstMistake) {
    const std::filesystem::path folder = GoldenFolder() / GetParam();
    const std::string source = ReadBytes(folder / "source.bb");
    EXPECT_EQ(Shown(FindStructureMistake(source)) + "\n", ReadBytes(folder / "expected.txt"));
}

INSTANTIATE_TEST_SUITE_P(Checker, GoldenProgram, testing::ValuesIn(GoldenCases()),
                         [](const auto &golden) { return golden.param; });

} // namespace Quillbox
