// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ClosingDocuments : public FakeProgram {
  protected:
    void OpenThree() { Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"}); }
    void CloseAt(int position) {
        Walk.tabDocuments_Click(position + 1);
        Log.Clear();
        Documents.CloseDocument();
    }
    std::vector<QString> OpenPaths() {
        std::vector<QString> paths;
        for (int position = 1; position <= Registry.DocumentCount; ++position)
            paths.push_back(WindowOf(position).Caption());
        return paths;
    }
};

TEST_F(ClosingDocuments, MovesLaterDocumentsDownIntoTheEarlierWindows) {
    OpenThree();
    FakeDocumentWindow &windowOfA = WindowOf(1);
    FakeDocumentWindow &windowOfB = WindowOf(2);
    FakeDocumentWindow &windowOfC = WindowOf(3);

    CloseAt(2);

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(&WindowOf(1), &windowOfA);
    EXPECT_EQ(&WindowOf(2), &windowOfB);
    EXPECT_EQ(windowOfB.Caption(), QString("/j/c.prg"));
    EXPECT_EQ(windowOfB.TextEditor.Content, QString("text of /j/c.prg"));
    EXPECT_TRUE(windowOfC.Closed);
    EXPECT_FALSE(windowOfB.Closed);
}

TEST_F(ClosingDocuments, KeepsTheOthersInTheirOrderFromEveryPosition) {
    struct Case {
        int Position;
        std::vector<QString> Paths;
        std::vector<QString> Tabs;
        int CurrentIndex;
    };
    const Case cases[] = {
        {1, {"/j/b.prg", "/j/c.prg"}, {"Ayuda", "b.prg", "c.prg"}, 1},
        {2, {"/j/a.prg", "/j/c.prg"}, {"Ayuda", "a.prg", "c.prg"}, 2},
        {3, {"/j/a.prg", "/j/b.prg"}, {"Ayuda", "a.prg", "b.prg"}, 2},
    };
    for (const Case &one : cases) {
        Documents.mnuArchivo_CerrarTodo_Click();
        OpenThree();

        CloseAt(one.Position);

        EXPECT_EQ(OpenPaths(), one.Paths);
        EXPECT_EQ(Tabs.Captions, one.Tabs);
        EXPECT_EQ(Registry.CurrentIndex, one.CurrentIndex);
        EXPECT_EQ(Tabs.Selected, one.CurrentIndex + 1);
    }
}

TEST_F(ClosingDocuments, MovesNamesFoldersAndTexts) {
    Open({"/j/a.prg", "/k/b.prg"});
    EditorOf(2).Content = "unsaved";

    CloseAt(1);

    EXPECT_EQ(Registry.Documents[1].FileName, QString("b.prg"));
    EXPECT_EQ(Registry.Documents[1].Directory, QString("/k/"));
    EXPECT_EQ(EditorOf(1).Content, QString("unsaved"));
}

TEST_F(ClosingDocuments, KeepsThePositionsInTheRecords) {
    OpenThree();

    CloseAt(1);

    EXPECT_EQ(Registry.Documents[1].Index, 1);
    EXPECT_EQ(Registry.Documents[2].Index, 2);
}

TEST_F(ClosingDocuments, MovesModifiedFlagsAndTheirIndicators) {
    OpenThree();
    EditorOf(1).Modified = true;
    WindowOf(1).PanelsEnabled[StatusPanel::Modified] = true;
    EditorOf(3).Modified = true;

    CloseAt(1);

    EXPECT_FALSE(EditorOf(1).Modified);
    EXPECT_FALSE(WindowOf(1).PanelsEnabled[StatusPanel::Modified]);
    EXPECT_TRUE(EditorOf(2).Modified);
    EXPECT_TRUE(WindowOf(2).PanelsEnabled[StatusPanel::Modified]);
}

TEST_F(ClosingDocuments, MovesAnUntitledDocument) {
    Open({"/j/a.prg"});
    Documents.NewDocument();
    EditorOf(2).Content = "no name yet";

    CloseAt(1);

    EXPECT_TRUE(IsUntitled(Registry.Documents[1]));
    EXPECT_EQ(WindowOf(1).Caption(), QString("< sin título >"));
    EXPECT_EQ(EditorOf(1).Content, QString("no name yet"));
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "< sin título >"));
}

TEST_F(ClosingDocuments, TakesItsStepsInOrder) {
    OpenThree();
    Walk.tabDocuments_Click(3);
    Tabs.Click = [](int) {};
    Log.Clear();

    Documents.CloseDocument();

    EXPECT_THAT(Log.Calls(),
                ElementsAre("tabs.RemoveTab 4", "editor.TakeContentsFrom",
                            "window.EnablePanel Modified false", "window.SetCaption /j/c.prg",
                            "tabs.SetTabCaption 3 c.prg", "window.Close /j/c.prg",
                            "window.Activate /j/c.prg", "window.Maximize /j/c.prg",
                            "editor.SetFocus", "tabs.SetTabCaption 3 c.prg"));
}

TEST_F(ClosingDocuments, MovesNothingWhenTheLastOneGoes) {
    OpenThree();
    FakeDocumentWindow &windowOfC = WindowOf(3);

    CloseAt(3);

    EXPECT_THAT(Log.CallsOf({"editor.TakeContentsFrom", "window.SetCaption"}), IsEmpty());
    EXPECT_TRUE(windowOfC.Closed);
    EXPECT_EQ(Log.CallsOf({"window.Activate"}).front(), "window.Activate /j/b.prg");
}

TEST_F(ClosingDocuments, LeavesTheHelpPageWhenTheOnlyOneGoes) {
    Open({"/j/a.prg"});
    FakeDocumentWindow &window = WindowOf(1);

    CloseAt(1);

    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_EQ(Registry.CurrentIndex, 0);
    EXPECT_TRUE(window.Closed);
    EXPECT_EQ(Tabs.Selected, 1);
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda"));
    EXPECT_THAT(Log.CallsOf({"help."}), ElementsAre("help.SetFocus"));
}

TEST_F(ClosingDocuments, DisablesTheDocumentCommandsWhenTheOnlyOneGoes) {
    Open({"/j/a.prg"});
    Tabs.Click = [](int) {};
    Main.Enabled.clear();

    Documents.CloseDocument();

    EXPECT_FALSE(Main.Enabled.at("mnuEdicion"));
    EXPECT_FALSE(Main.Enabled.at("mnuVentana"));
    EXPECT_FALSE(Main.Enabled.at("tb:Ejecutar"));
}

/// Through the click of the help tab: this is what leaves the way to the next document open.
TEST_F(ClosingDocuments, EnablesTheWindowMenuAgainWhenTheOnlyOneGoes) {
    Open({"/j/a.prg"});

    CloseAt(1);

    EXPECT_TRUE(Main.Enabled.at("mnuVentana"));
    EXPECT_FALSE(Main.Enabled.at("mnuEdicion"));
}

TEST_F(ClosingDocuments, AsksNothingByItself) {
    Open({"/j/a.prg"});
    EditorOf(1).Modified = true;

    Documents.CloseDocument();

    EXPECT_THAT(Log.CallsOf({"dialogs.", "editor.SaveFile"}), IsEmpty());
}

TEST_F(ClosingDocuments, LeavesOpenWindowsOpen) {
    OpenThree();

    CloseAt(1);

    EXPECT_FALSE(Main.Windows[0]->Closed);
    EXPECT_FALSE(Main.Windows[1]->Closed);
    EXPECT_TRUE(Main.Windows[2]->Closed);
}

} // namespace
} // namespace Quillbox
