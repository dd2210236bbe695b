// SPDX-License-Identifier: GPL-3.0-or-later
// What counts as a declaration and which name it gets.
#include "EditorProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct NameRow {
    const char *Line;
    const char *Name;
};

class FunctionLine : public EditorProgram, public testing::WithParamInterface<NameRow> {};

TEST_P(FunctionLine, GivesItsNameUpToABracketOrAPoint) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    Scanner.ScanSymbols();
    EXPECT_THAT(Functions(), ElementsAre(GetParam().Name));
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_EQ(Game().FunctionNames[0].toStdString(), GetParam().Name);
    EXPECT_EQ(Game().FunctionLines[0], QString("0"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, FunctionLine,
    testing::Values(NameRow{"process Main()", "Main"}, NameRow{"PROCESS x.y", "x"},
                    NameRow{"pRoCeSs MiXeD(a)", "MiXeD"}, // names keep their case
                    NameRow{"process", ""}, NameRow{"process ", ""}, NameRow{"process (x)", ""},
                    NameRow{"process\tMain()", "Main"}, // character 8 is skipped whatever it is
                    NameRow{"process(Main)", "Main)"},  //
                    NameRow{"process.Main", "Main"},    //
                    NameRow{"processor = 1", "r = 1"},  // no word boundary
                    NameRow{"process  Dos()", " Dos"},  // only one blank is skipped
                    NameRow{"process Mover (x)", "Mover "},
                    NameRow{"process Disparo  // nota", "Disparo  // nota"},
                    NameRow{"process Disparo // v1.0", "Disparo // v1"},
                    NameRow{"process Ñandú()", "Ñandú"}, NameRow{"process type x", "type x"}));

class TypeLine : public EditorProgram, public testing::WithParamInterface<NameRow> {};

TEST_P(TypeLine, GivesEverythingBehindTheWordAndOneCharacter) {
    Editor().Content = QString::fromUtf8(GetParam().Line);
    Scanner.ScanSymbols();
    EXPECT_THAT(Types(), ElementsAre(GetParam().Name));
    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_EQ(Game().TypeNames[0].toStdString(), GetParam().Name);
    EXPECT_EQ(Game().TypeLines[0], QString("0"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, TypeLine,
    testing::Values(NameRow{"Type Player", "Player"}, NameRow{"TYPE pLaYeR", "pLaYeR"},
                    NameRow{"type", ""}, NameRow{"TYPE", ""}, NameRow{"type ", ""},
                    NameRow{"types = 3", " = 3"}, // no word boundary; one character is dropped
                    NameRow{"type\tBala", "Bala"}, NameRow{"type  Bala", " Bala"},
                    NameRow{"Type Enemy ; comment", "Enemy ; comment"},
                    NameRow{"type a(b).c", "a(b).c"}, NameRow{"type Año ", "Año "}));

class OrdinaryLine : public EditorProgram, public testing::WithParamInterface<const char *> {};

TEST_P(OrdinaryLine, DeclaresNothing) {
    Editor().Content = QString::fromUtf8(GetParam());
    Scanner.ScanSymbols();
    EXPECT_THAT(Functions(), IsEmpty());
    EXPECT_THAT(Types(), IsEmpty());
    EXPECT_EQ(CompletedScans(), 1);
}

INSTANTIATE_TEST_SUITE_P(Lines, OrdinaryLine,
                         testing::Values("", " ", "x", "  process Main()", "\tprocess Main()",
                                         "// process Main()", "proces Main()", "end process",
                                         " type Player", "typ Player", "end type", ".etiqueta",
                                         "function Main()", "label:"));

TEST_F(EditorProgram, LineOfExactlyTheFunctionWordGivesAnEmptyListEntry) {
    Editor().Content = QStringLiteral("process");
    Scanner.ScanSymbols();
    EXPECT_EQ(Lists.ItemCount(NavigationList::Functions), 1);
}

} // namespace
} // namespace Quillbox
