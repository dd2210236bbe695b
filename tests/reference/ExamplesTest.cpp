// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;

TEST(Examples, SayInTheirFirstLinesWhatTheyAre) {
    QStringList problems;
    const auto example = ReadExample(
        "bolas.bb", "; Bolas que rebotan\r\n; Tema: graphics, input\r\n; Seis bolas.\r\nCls\r\n",
        problems);
    ASSERT_TRUE(example);
    EXPECT_EQ(example->File, "bolas.bb");
    EXPECT_EQ(example->Title, "Bolas que rebotan");
    EXPECT_EQ(example->Themes, QStringList({"graphics", "input"}));
    EXPECT_EQ(example->Sentence, "Seis bolas.");
    EXPECT_TRUE(problems.isEmpty());
}

TEST(Examples, MayNameTheTitleAsOne) {
    QStringList problems;
    const auto example =
        ReadExample("a.bb", "; Título: Bolas\n; tema: graphics\n; Seis bolas.\n", problems);
    ASSERT_TRUE(example);
    EXPECT_EQ(example->Title, "Bolas");
}

class BadExamples : public testing::TestWithParam<const char *> {};

TEST_P(BadExamples, AreReportedWithTheirName) {
    QStringList problems;
    EXPECT_FALSE(ReadExample("a.bb", GetParam(), problems));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("a.bb"));
}

INSTANTIATE_TEST_SUITE_P(All, BadExamples,
                         testing::Values("", "Cls\n; Tema: a\n; b\n", "; a\n; b\n; c\n",
                                         "; a\n; Tema: b\nCls\n", ";\n; Tema: b\n; c\n"));

} // namespace
} // namespace Quillbox
