// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Sources.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::HasSubstr;

const QString Table = "# nota\n"
                      "tema: flow\n"
                      "también: loops bucles\n"
                      "grupo: El lenguaje\n"
                      "título: Decisiones\n"
                      "introducción: Lo que: decide.\n"
                      "palabras: If Then\n"
                      "palabras: Else\n"
                      "\n"
                      "ejemplo: Una pregunta:\n"
                      "| If a\n"
                      "|     b\n"
                      "| EndIf\n";

TEST(Themes, ReadEveryField) {
    QStringList problems;
    const auto themes = ReadThemes(Table, problems);
    EXPECT_TRUE(problems.isEmpty());
    ASSERT_EQ(themes.size(), 1U);
    EXPECT_EQ(themes[0].Key, "flow");
    EXPECT_EQ(themes[0].OtherKeys, QStringList({"loops", "bucles"}));
    EXPECT_EQ(themes[0].Group, "El lenguaje");
    EXPECT_EQ(themes[0].Title, "Decisiones");
    EXPECT_EQ(themes[0].Introduction, "Lo que: decide.");
    EXPECT_EQ(themes[0].Words, QStringList({"If", "Then", "Else"}));
}

TEST(Themes, KeepTheIndentOfCode) {
    QStringList problems;
    const auto themes = ReadThemes(Table, problems);
    ASSERT_EQ(themes[0].Samples.size(), 1U);
    EXPECT_EQ(themes[0].Samples[0].Caption, "Una pregunta:");
    EXPECT_EQ(themes[0].Samples[0].Lines, QStringList({"If a", "    b", "EndIf"}));
}

TEST(Themes, ReadLinesThatEndInCarriageReturnToo) {
    QStringList problems;
    EXPECT_EQ(ReadThemes(QString(Table).replace("\n", "\r\n"), problems)[0].Title, "Decisiones");
    EXPECT_TRUE(problems.isEmpty());
}

TEST(Themes, AreFoundByAnyOfTheirKeysInAnyLetterCase) {
    QStringList problems;
    const Theme theme = ReadThemes(Table, problems)[0];
    EXPECT_TRUE(IsCalled(theme, "Flow"));
    EXPECT_TRUE(IsCalled(theme, "bucles"));
    EXPECT_FALSE(IsCalled(theme, "Decisiones"));
}

class BadThemes : public testing::TestWithParam<const char *> {};

TEST_P(BadThemes, AreReportedWithTheirLine) {
    QStringList problems;
    ReadThemes(QString("# uno\n") + GetParam(), problems);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("Themes.txt, line 2"));
}

INSTANTIATE_TEST_SUITE_P(All, BadThemes,
                         testing::Values("título: sin tema\n", "| código sin tema\n", "tema:\n",
                                         "sin dos puntos\n"));

TEST(Themes, ReportAFieldThatTheyDoNotKnow) {
    QStringList problems;
    ReadThemes("tema: flow\ncolor: rojo\n", problems);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_THAT(problems[0].toStdString(), HasSubstr("line 2: \"color: rojo\""));
}

} // namespace
} // namespace Quillbox
