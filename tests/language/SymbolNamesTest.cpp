// SPDX-License-Identifier: GPL-3.0-or-later
// What counts as a declaration and which name it gets.
#include "editor/EditorProgram.h"
#include "fakes/TestRow.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct NameRow : TestRow {
    const char *Line;
    const char *Symbol;
};

class FunctionLine : public EditorProgram, public testing::WithParamInterface<NameRow> {};

TEST_P(FunctionLine, GivesItsNameUpToABracketOrAPoint) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    Scanner.ScanSymbols();
    EXPECT_THAT(Functions(), ElementsAre(GetParam().Symbol));
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_EQ(Game().FunctionNames[0].toStdString(), GetParam().Symbol);
    EXPECT_EQ(Game().FunctionLines[0], QString("0"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FunctionLine,
    testing::Values(NameRow{"EndsAtABracket", "process Main()", "Main"},
                    NameRow{"EndsAtAPoint", "PROCESS x.y", "x"},
                    NameRow{"KeepsItsLetterCase", "pRoCeSs MiXeD(a)", "MiXeD"},
                    NameRow{"MayBeMissing", "process", ""},
                    NameRow{"MayBeMissingBehindABlank", "process ", ""},
                    NameRow{"MayBeMissingBeforeABracket", "process (x)", ""},
                    NameRow{"MayStandBehindATab", "process\tMain()", "Main"},
                    NameRow{"MayStandBehindABracket", "process(Main)", "Main)"},
                    NameRow{"MayStandBehindAPoint", "process.Main", "Main"},
                    NameRow{"MayBelongToALongerWord", "processor = 1", "r = 1"},
                    NameRow{"KeepsASecondBlank", "process  Dos()", " Dos"},
                    NameRow{"KeepsTheBlankBeforeTheBracket", "process Mover (x)", "Mover "},
                    NameRow{"KeepsAComment", "process Disparo  // nota", "Disparo  // nota"},
                    NameRow{"EndsInsideAComment", "process Disparo // v1.0", "Disparo // v1"},
                    NameRow{"MayHaveAccents", "process Ñandú()", "Ñandú"},
                    NameRow{"MayBeginLikeAType", "process type x", "type x"}),
    RowName);

class TypeLine : public EditorProgram, public testing::WithParamInterface<NameRow> {};

TEST_P(TypeLine, GivesEverythingBehindTheWordAndOneCharacter) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    Scanner.ScanSymbols();
    EXPECT_THAT(Types(), ElementsAre(GetParam().Symbol));
    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_EQ(Game().TypeNames[0].toStdString(), GetParam().Symbol);
    EXPECT_EQ(Game().TypeLines[0], QString("0"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, TypeLine,
    testing::Values(NameRow{"StandsBehindABlank", "Type Player", "Player"},
                    NameRow{"KeepsItsLetterCase", "TYPE pLaYeR", "pLaYeR"},
                    NameRow{"MayBeMissing", "type", ""},
                    NameRow{"MayBeMissingInCapitals", "TYPE", ""},
                    NameRow{"MayBeMissingBehindABlank", "type ", ""},
                    NameRow{"MayBelongToALongerWord", "types = 3", " = 3"},
                    NameRow{"MayStandBehindATab", "type\tBala", "Bala"},
                    NameRow{"KeepsASecondBlank", "type  Bala", " Bala"},
                    NameRow{"KeepsAComment", "Type Enemy ; comment", "Enemy ; comment"},
                    NameRow{"IsNotCutAtABracketOrAPoint", "type a(b).c", "a(b).c"},
                    NameRow{"KeepsABlankAtItsEnd", "type Año ", "Año "}),
    RowName);

struct LineRow : TestRow {
    const char *Line;
};

class OrdinaryLine : public EditorProgram, public testing::WithParamInterface<LineRow> {};

TEST_P(OrdinaryLine, DeclaresNothing) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    Scanner.ScanSymbols();
    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_EQ(CompletedScans(), 1);
}

INSTANTIATE_TEST_SUITE_P(Lines, OrdinaryLine,
                         testing::Values(LineRow{"Empty", ""}, LineRow{"Blank", " "},
                                         LineRow{"Short", "x"},
                                         LineRow{"FunctionBehindBlanks", "  process Main()"},
                                         LineRow{"FunctionBehindATab", "\tprocess Main()"},
                                         LineRow{"FunctionInAComment", "// process Main()"},
                                         LineRow{"FunctionWordCutShort", "proces Main()"},
                                         LineRow{"FunctionWordSecond", "end process"},
                                         LineRow{"TypeBehindABlank", " type Player"},
                                         LineRow{"TypeWordCutShort", "typ Player"},
                                         LineRow{"TypeWordSecond", "end type"},
                                         LineRow{"PointLabel", ".etiqueta"},
                                         LineRow{"ColonLabel", "etiqueta:"},
                                         LineRow{"FunctionOfTheOtherLanguage", "function Main()"}),
                         RowName);

TEST_F(EditorProgram, LineOfExactlyTheFunctionWordGivesAnEmptyListEntry) {
    Editor().Content = QStringLiteral("process");
    Scanner.ScanSymbols();
    EXPECT_EQ(Lists.ItemCount(NavigationList::Functions), 1);
}

} // namespace
} // namespace Quillbox
