// SPDX-License-Identifier: GPL-3.0-or-later
#include "ColouringFixture.h"

#include <gtest/gtest.h>

namespace Quillbox {

TEST(Comments, RunToTheEndOfTheirLine) { EXPECT_EQ(Coloured("x // y z\nx"), "..cccccc.."); }

TEST(Comments, EndBeforeEveryKindOfLineEnd) {
    EXPECT_EQ(Coloured("//a\r\n1"), "ccc..n");
    EXPECT_EQ(Coloured("//a\r1"), "ccc.n");
    EXPECT_EQ(Coloured("//a\n1"), "ccc.n");
}

TEST(Comments, MayStandAtTheVeryEndOfALineOrOfTheText) {
    EXPECT_EQ(Coloured("x//\n1"), ".cc.n");
    EXPECT_EQ(Coloured("x//"), ".cc");
}

TEST(Comments, HideStringsAndMultiLineMarkers) {
    EXPECT_EQ(Coloured("// \" /* \n1"), "cccccccc.n");
}

TEST(Comments, NeedTheWholeMarker) { EXPECT_EQ(Coloured("/ /"), "o.o"); }

TEST(Comments, KeepNulBytesInside) {
    EXPECT_EQ(Coloured(std::string_view("//\0a\n1", 6)), "cccc.n");
}

TEST(MultiLineComments, SpanLinesAndTheirLineEnds) {
    EXPECT_EQ(Coloured("a/*\r\n\nb*/1"), ".mmmmmmmmn");
}

TEST(MultiLineComments, RunToTheEndOfTheTextWhenUnclosed) {
    EXPECT_EQ(Coloured("/* if \n"), "mmmmmmm");
    EXPECT_EQ(StateBehind("/* if \n"), ColouringState::MultiLineComment);
}

TEST(MultiLineComments, AreClosedBehindTheirEndMarker) {
    EXPECT_EQ(StateBehind("/* if */"), ColouringState::Code);
}

TEST(MultiLineComments, DoNotCloseWithinTheirStartMarker) {
    EXPECT_EQ(Coloured("/*/1"), "mmmm");
    EXPECT_EQ(StateBehind("/*/"), ColouringState::MultiLineComment);
}

TEST(MultiLineComments, HideSingleLineMarkers) { EXPECT_EQ(Coloured("/* // */1"), "mmmmmmmmn"); }

TEST(MultiLineComments, GoOnFromTheLineBefore) {
    EXPECT_EQ(Coloured(BlitzLikeLanguage(), "if */ if", ColouringState::MultiLineComment),
              "mmmmm.kk");
}

TEST(MultiLineComments, StayOpenOverAnEmptyLine) {
    EXPECT_EQ(StateBehind("", ColouringState::MultiLineComment), ColouringState::MultiLineComment);
    EXPECT_EQ(StateBehind("\n", ColouringState::MultiLineComment),
              ColouringState::MultiLineComment);
}

TEST(MultiLineComments, TellInTheirLineEndThatTheNextLineStartsInside) {
    EXPECT_EQ(StateAfter(TextStyle::MultiLineComment), ColouringState::MultiLineComment);
    EXPECT_EQ(Coloured("/**/\n"), "mmmm.");
    EXPECT_EQ(StateAfter(TextStyle::Text), ColouringState::Code);
}

TEST(Strings, EndAtTheNextDelimiter) { EXPECT_EQ(Coloured("x=\"if\"+1"), ".osssson"); }

TEST(Strings, EndAtTheLineEndWhenUnclosed) {
    EXPECT_EQ(Coloured("\"ab\n1"), "sss.n");
    EXPECT_EQ(Coloured("\"ab\r\n1"), "sss..n");
    EXPECT_EQ(Coloured("\""), "s");
}

TEST(Strings, HideCommentMarkers) {
    EXPECT_EQ(Coloured("\"/* // \" if"), "ssssssss.kk");
    EXPECT_EQ(StateBehind("\"/*\"\n"), ColouringState::Code);
}

TEST(Strings, MayHaveADelimiterOfSeveralCharacters) {
    LanguageDefinition language;
    language.StringDelimiter = "''";
    EXPECT_EQ(Coloured(language, "''a'b''c'"), "sssssss..");
}

TEST(Operators, AreSingleCharactersOfTheList) { EXPECT_EQ(Coloured("a=b+(c)&d"), ".o.oo.o.."); }

TEST(Operators, MayNotBeLettersDigitsOrLongerTexts) {
    LanguageDefinition language;
    language.Operators = "a\n1\n<>\n \n_\n+\n";
    EXPECT_EQ(Coloured(language, "a1<>_ +"), "......o");
}

TEST(Words, AreKeywordsOnlyAsAWhole) {
    EXPECT_EQ(Coloured("if iff xif if1 if_"), "kk................");
    EXPECT_EQ(Coloured("1if"), "nkk");
}

TEST(Words, AreFoundInAnyCaseWhenCaseDoesNotCount) {
    EXPECT_EQ(Coloured("If iF moveship"), "kk.kk.uuuuuuuu");
}

TEST(Words, AreTakenLiterallyWhenCaseCounts) {
    LanguageDefinition language = BlitzLikeLanguage();
    language.Case = CaseSensitivity::On;
    EXPECT_EQ(Coloured(language, "IF If if MoveShip moveship"), "kk....uu.uuuuuuuu.........");
}

TEST(Words, AreKeywordsRatherThanUserWords) { EXPECT_EQ(Coloured("if"), "kk"); }

TEST(Words, IncludeAccentedLetters) {
    EXPECT_EQ(Coloured("ifñ ñif"), ".........");
    EXPECT_EQ(Coloured("año AÑO niño NIÑO"), "kkkk.kkkk.uuuuu.uuuuu");
}

TEST(Words, MayBeHeldInTheFormThatUpperCaseGivesThem) {
    LanguageDefinition language;
    language.Keywords = "\n" + QStringLiteral("straße").toUpper();
    EXPECT_EQ(Coloured(language, "Straße"), "kkkkkkk");
}

TEST(Words, AreNotConfusedByEmptyItems) {
    LanguageDefinition language;
    language.Keywords = "\n\n\nif\n\n";
    EXPECT_EQ(Coloured(language, "if a"), "kk..");
}

TEST(Text, KeepsNulBytesAndOtherControlCharacters) {
    EXPECT_EQ(Coloured(std::string_view("a\0if\x01if", 7)), "..kk.kk");
}

TEST(Text, OfNothingHasNoColours) { EXPECT_EQ(Coloured(""), ""); }

TEST(Rules, AreSwitchedOffByEmptyMarkers) {
    LanguageDefinition language;
    EXPECT_EQ(Coloured(language, "// /* \"a\" */ 1"), ".............n");
}

TEST(Rules, OfMultiLineCommentsNeedBothMarkers) {
    LanguageDefinition language;
    language.MultiLineCommentStart = "/*";
    EXPECT_EQ(Coloured(language, "/* 1"), "...n");
    EXPECT_EQ(Coloured(language, "a 1", ColouringState::MultiLineComment), "..n");
}

TEST(Rules, GiveTheLongerMarkerTheWord) {
    LanguageDefinition language;
    language.SingleLineComment = "/";
    language.MultiLineCommentStart = "/*";
    language.MultiLineCommentEnd = "*/";
    EXPECT_EQ(Coloured(language, "/*a*/1 /b"), "mmmmmn.cc");
}

TEST(Rules, IgnoreMarkersWithALineEndInside) {
    LanguageDefinition language;
    language.SingleLineComment = "/\n";
    EXPECT_EQ(Coloured(language, "/\n1"), "..n");
}

} // namespace Quillbox
