// SPDX-License-Identifier: GPL-3.0-or-later
#include "ColouringFixture.h"

#include <gtest/gtest.h>

namespace Quillbox {

TEST(Numbers, AreDigitsWithAFraction) {
    EXPECT_EQ(Coloured("12 1.5 007"), "nn.nnn.nnn");
    EXPECT_EQ(Coloured("1.2.3"), "nnn.n");
}

TEST(Numbers, LeaveOutAPointWithoutDigits) { EXPECT_EQ(Coloured("1. x"), "n..."); }

TEST(Numbers, MayHaveAnExponent) {
    EXPECT_EQ(Coloured("1e5 1.5E-3 2e+10+.5e2"), "nnn.nnnnnn.nnnnnonnnn");
}

TEST(Numbers, LeaveOutAnExponentWithoutDigits) { EXPECT_EQ(Coloured("1e 2e+ 3ex"), "n..n.o.n.."); }

TEST(Numbers, MayBeginWithAPointWhereAnOperandMayStand) {
    EXPECT_EQ(Coloured(".5 =.5 (.5"), "nn.onn.onn");
    EXPECT_EQ(Coloured("print .5"), "kkkkk.nn");
}

TEST(Numbers, DoNotBeginWithThePointBehindAnOperand) {
    EXPECT_EQ(Coloured("x.5"), "..n");
    EXPECT_EQ(Coloured("(x).5"), "o.o.n");
    EXPECT_EQ(Coloured("x .5"), "...n");
    EXPECT_EQ(Coloured("\"a\".5"), "sss.n");
}

TEST(Numbers, MayBeHexadecimalOrBinaryWhereAnOperandMayStand) {
    EXPECT_EQ(Coloured("=$FFa0 =%101"), "onnnnn.onnnn");
    EXPECT_EQ(Coloured("print $ff"), "kkkkk.nnn");
    EXPECT_EQ(Coloured("moveship $ff,%1"), "uuuuuuuu.nnnonn");
}

TEST(Numbers, AreNoTypeSuffixes) {
    EXPECT_EQ(Coloured("a$=1"), "..on");
    EXPECT_EQ(Coloured("left$(a$"), "kkkk.o..");
    EXPECT_EQ(Coloured("if$FF"), "kk...");
    EXPECT_EQ(Coloured("a%101"), "..nnn");
}

TEST(Numbers, AreNotMadeOfAPrefixAlone) {
    EXPECT_EQ(Coloured("$ % . $g %2"), "......"
                                       "..."
                                       ".n");
}

TEST(Numbers, FollowAnOperandOnTheLineBefore) { EXPECT_EQ(Coloured("x\n.5"), "..nn"); }

TEST(Numbers, MayFollowACommentThatBeganBehindAnOperand) {
    EXPECT_EQ(Coloured("x /*\n*/ .5"), "..mmmmm.nn");
}

TEST(Numbers, GiveWayToOperatorsOfTheSameCharacter) {
    LanguageDefinition language;
    language.Operators = ".\n%\n";
    EXPECT_EQ(Coloured(language, "a.b %1 5 %1 .5"), ".o..on.n.on.on");
}

} // namespace Quillbox
