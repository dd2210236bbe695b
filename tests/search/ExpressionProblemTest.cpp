// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/ExpressionProblem.h"
#include "search/TextSearch.h"

#include <gtest/gtest.h>

namespace Quillbox {
namespace {

QString ProblemOf(const char *term) {
    const MadeSearch made =
        MakeSearch({.Term = QString::fromUtf8(term), .IsExpression = true}, std::chrono::hours(1));
    const auto *bad = std::get_if<BadExpression>(&made);
    return bad == nullptr ? QString() : bad->Reason;
}

} // namespace

TEST(ExpressionProblem, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(ProblemOf("uno(dos"),
              "Expresión no válida: falta un paréntesis de cierre (posición 8).");
    EXPECT_EQ(ProblemOf("año)"),
              "Expresión no válida: sobra un paréntesis de cierre (posición 4).");
    EXPECT_EQ(ProblemOf("*a"), "Expresión no válida: un cuantificador (*, +, ? o {}) no tiene nada "
                               "que repetir (posición 1).");
}

TEST(ExpressionProblem, HasAReasonInSpanishForEveryCommonMistake) {
    for (const char *term : {"(",
                             "a)",
                             "[a",
                             "*a",
                             "a{3,1}",
                             "a{99999}",
                             "\\",
                             "[b-a]",
                             "\\k",
                             "\\g",
                             "(?<n>a)(?<n>b)",
                             "\\p{Foo}",
                             "(?<=a*)b",
                             "(?z)",
                             "(?<1a>x)",
                             "\\2",
                             "[[:foo:]]",
                             "(?#abc",
                             "(*FOO)a",
                             "(?(1)a|b|c)",
                             "[\\d-z]",
                             "(?<n",
                             "\\c",
                             "\\o",
                             "(?C999)",
                             "\\u0041",
                             "[[.a.]]",
                             "x(?+a)",
                             "[:alpha:]",
                             "(?<>x)",
                             "\\x{zz}",
                             "\\o{9}",
                             "(?R",
                             "(?(1a)b)",
                             "\\x{110000000}",
                             "a**",
                             "(?=a\\Kb)"}) {
        EXPECT_FALSE(ProblemOf(term).isEmpty()) << term;
        EXPECT_FALSE(ProblemOf(term).contains("no se entiende")) << term;
    }
}

TEST(ExpressionProblem, SaysWhereAMistakeIsThatItHasNoWordsFor) {
    EXPECT_EQ(ExpressionProblem("some new message", 4),
              "Expresión no válida: no se entiende (posición 5).");
}

} // namespace Quillbox
