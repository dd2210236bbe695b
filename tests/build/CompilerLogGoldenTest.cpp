// SPDX-License-Identifier: GPL-3.0-or-later
// Whole outputs, as compilers print them, and where they take the person.
#include "BuildProgram.h"
#include "fakes/GoldenCases.h"

namespace Quillbox {
namespace {

class CompilerOutput : public BuildProgram, public testing::WithParamInterface<std::string> {
  protected:
    /// The calls that the person notices, one to a line, or that there were none.
    std::string Noticed(const QString &output) {
        const int error = ErrorNumberOf([&] { Reader.ShowCompilerErrors(output); });
        std::string text;
        for (const std::string &call :
             Log.CallsOf({"editor.OpenFile", "editor.SetHighlightedLine", "editor.SetTopIndex",
                          "editor.SetCaretPos", "dialogs."}))
            text += call + '\n';
        if (error != 0)
            text += "run-time error " + std::to_string(error) + '\n';
        return text + (Reader.CompileErrorFound ? "error found\n" : "no error found\n");
    }
};

TEST_P(CompilerOutput, TakesThePersonToTheExpectedPlace) {
    const std::filesystem::path folder = GoldenFolder("compiler_log") / GetParam();
    const QString output = ReadAnsi(folder / "output.txt");

    EXPECT_EQ(Noticed(output), ReadBytes(folder / "expected.txt"));
    EXPECT_EQ(Stored.Contents[LogFile].toStdString(), ReadBytes(folder / "output.txt") + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(CompilerLog, CompilerOutput,
                         testing::ValuesIn(GoldenCases("compiler_log")),
                         [](const auto &golden) { return golden.param; });

} // namespace
} // namespace Quillbox
