// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/SymbolLists.h"

#include "editor/EditorProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class JumpToDeclaration : public EditorProgram {
  protected:
    JumpToDeclaration() {
        Game().FunctionLines[0] = QStringLiteral("4");
        Game().FunctionLines[1] = QStringLiteral("17");
        Game().TypeLines[0] = QStringLiteral("8");
        Game().TypeLines[1] = QStringLiteral("21");
    }
    void Select(NavigationList list, int item) { Lists.Selected[list] = item; }
};

TEST_F(JumpToDeclaration, GoesToTheLineOfTheChosenFunction) {
    Select(NavigationList::Functions, 1);
    Jumps.GotoFunction();
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 17"));
}

TEST_F(JumpToDeclaration, GoesToTheFirstFunctionToo) {
    Select(NavigationList::Functions, 0);
    Jumps.GotoFunction();
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 4"));
}

TEST_F(JumpToDeclaration, GoesToTheLineOfTheChosenType) {
    Select(NavigationList::Types, 1);
    Jumps.GotoType();
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 21"));
}

TEST_F(JumpToDeclaration, GoesNowhereForALabel) {
    Select(NavigationList::Labels, 0);
    Jumps.GotoLabel();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(JumpToDeclaration, DoesNothingWithoutAChosenEntry) {
    Jumps.GotoFunction();
    Jumps.GotoLabel();
    Jumps.GotoType();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(JumpToDeclaration, DoesNothingWhileAScanIsPending) {
    Select(NavigationList::Functions, 0);
    Select(NavigationList::Types, 0);
    Game().Scanning = true;
    Jumps.GotoFunction();
    Jumps.GotoType();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(JumpToDeclaration, DoesNothingWhileTheHelpPageIsActive) {
    Select(NavigationList::Functions, 0);
    Select(NavigationList::Types, 0);
    Registry.CurrentIndex = 0;
    Jumps.GotoFunction();
    Jumps.GotoType();
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

TEST_F(JumpToDeclaration, ReadsALineThatIsNoNumberAsTheFirstLine) {
    Select(NavigationList::Functions, 0);
    for (const char *text : {"", "x", "x9"}) {
        Game().FunctionLines[0] = QString::fromUtf8(text);
        Log.Clear();
        Jumps.GotoFunction();
        EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 0")) << text;
    }
}

TEST_F(JumpToDeclaration, GoesToTheLastEntryOfTheTable) {
    Game().FunctionLines[255] = QStringLiteral("999");
    Select(NavigationList::Functions, 255);
    Jumps.GotoFunction();
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 999"));
}

TEST_F(JumpToDeclaration, FollowsTheListThatWasUsed) {
    Select(NavigationList::Functions, 0);
    Select(NavigationList::Labels, 0);
    Select(NavigationList::Types, 0);
    Jumps.GotoSelected(NavigationList::Functions);
    Jumps.GotoSelected(NavigationList::Labels);
    Jumps.GotoSelected(NavigationList::Types);
    EXPECT_THAT(Log.Calls(), ElementsAre("editor.SetLinePosition 4", "editor.SetLinePosition 8"));
}

} // namespace
} // namespace Quillbox
