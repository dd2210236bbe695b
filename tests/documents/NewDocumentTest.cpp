// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NewDocuments : public FakeProgram {};

TEST_F(NewDocuments, AreUntitledAndCurrent) {
    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Registry.CurrentIndex, 1);
    EXPECT_EQ(Registry.Current().Index, 1);
    EXPECT_EQ(Registry.Current().FileName, QString("< sin título >"));
    EXPECT_TRUE(IsUntitled(Registry.Current()));
    EXPECT_EQ(WindowOf(1).Caption(), QString("< sin título >"));
}

TEST_F(NewDocuments, TakeTheirStepsInOrder) {
    Tabs.Click = [](int) {};

    Documents.NewDocument();

    EXPECT_THAT(Log.CallsOf({"main.EnableCommand mnuEdicion", "events.", "main.Create", "window.",
                             "editor.", "tabs.", "dialogs."}),
                ElementsAre("main.EnableCommand mnuEdicion true", "events.ProcessWindowEvents",
                            "main.CreateDocumentWindow", "window.Show < sin título >",
                            "tabs.AddTab 2 < sin título >", "tabs.SelectTab 2"));
}

TEST_F(NewDocuments, AreCountedBeforeTheCommandsAreEnabled) {
    int counted = -1;
    Events.WhilePumping = [&] { counted = counted < 0 ? Registry.DocumentCount : counted; };

    Documents.NewDocument();

    EXPECT_EQ(counted, 1);
}

TEST_F(NewDocuments, AreActivatedThroughTheirTab) {
    Documents.NewDocument();

    EXPECT_THAT(
        Log.CallsOf({"tabs.Select", "window.Activate", "window.Maximize", "editor.SetFocus"}),
        ElementsAre("tabs.SelectTab 2", "window.Activate < sin título >",
                    "window.Maximize < sin título >", "editor.SetFocus"));
    EXPECT_EQ(Tabs.Selected, 2);
}

TEST_F(NewDocuments, GoBehindTheLastTab) {
    Open({"/j/a.prg", "/j/b.prg"});
    Walk.tabDocuments_Click(2);

    Documents.NewDocument();

    EXPECT_EQ(Registry.CurrentIndex, 3);
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "a.prg", "b.prg", "< sin título >"));
}

TEST_F(NewDocuments, KnowTheirPositions) {
    for (int position = 1; position <= 3; ++position)
        Documents.NewDocument();

    for (int position = 1; position <= 3; ++position)
        EXPECT_EQ(Registry.Documents[position].Index, position);
}

/// A second request reaches the program while the first one lets pending events run.
TEST_F(NewDocuments, IgnoreASecondRequestWhileOneRuns) {
    Events.WhilePumping = [this] { Documents.NewDocument(); };

    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_EQ(Main.Windows.size(), 1U);
}

TEST_F(NewDocuments, AreAcceptedAgainAfterARequestHasEnded) {
    Documents.NewDocument();
    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 2);
}

TEST_F(NewDocuments, KeepTheCloseCommandAwayWhileTheyAreMade) {
    Open({"/j/a.prg"});
    EditorOf(1).Modified = true;
    Events.WhilePumping = [this] { Documents.mnuArchivo_Cerrar_Click(); };

    Documents.NewDocument();

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
    EXPECT_FALSE(WindowOf(1).Closed);
}

TEST_F(NewDocuments, CanBeClosedOnceTheyAreMade) {
    Documents.NewDocument();

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_EQ(Registry.DocumentCount, 0);
}

TEST_F(NewDocuments, HaveNoFolderWhereADocumentWithOneWasClosed) {
    Open({"/j/a.prg"});
    Documents.CloseDocument();

    Documents.NewDocument();

    EXPECT_EQ(Registry.Current().Directory, QString());
}

} // namespace
} // namespace Quillbox
