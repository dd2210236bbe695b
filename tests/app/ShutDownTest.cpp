// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ShutDown.h"

#include "fakes/FakeProgram.h"
#include "state/Project.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string DocumentQuestion =
    "dialogs.ShowMessage El archivo ha sido modificado. ¿Quieres guardar los cambios?";
const std::string SettingsWritten = "profile.WriteStrings Quillbox /q/Quillbox.ini";

class ShuttingDown : public FakeProgram {
  protected:
    void OpenThreeModified() {
        Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
        for (const int position : {1, 2, 3})
            EditorOf(position).Modified = true;
    }
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"CloseProject", "dialogs.", "window.Close", "profile."});
    }

    Project OpenProject;
    SettingsStore Store{"/q/", Options, Profile};
    ShutDown Closing{OpenProject,
                     [this] {
                         Log.Add("CloseProject");
                         OpenProject.File.clear();
                     },
                     Registry, Documents, Store};
};

TEST_F(ShuttingDown, WritesTheSettingsWhenNothingIsOpen) {
    EXPECT_TRUE(Closing.Run());

    EXPECT_THAT(Log.Calls(), ElementsAre(SettingsWritten));
}

TEST_F(ShuttingDown, ClosesTheProjectThenTheDocumentsAndWritesTheSettingsLast) {
    Open({"/j/a.prg", "/j/b.prg"});
    OpenProject.File = "/j/juego.fp";

    EXPECT_TRUE(Closing.Run());

    EXPECT_THAT(Steps(), ElementsAre("CloseProject", "window.Close /j/b.prg",
                                     "window.Close /j/a.prg", SettingsWritten));
    EXPECT_EQ(Registry.DocumentCount, 0);
}

TEST_F(ShuttingDown, EndsWhereTheProjectStaysOpen) {
    OpenThreeModified();
    OpenProject.File = "/j/juego.fp";
    Closing.CloseProject = [this] { Log.Add("CloseProject"); };

    EXPECT_FALSE(Closing.Run());

    EXPECT_THAT(Log.Calls(), ElementsAre("CloseProject"));
    EXPECT_EQ(Registry.DocumentCount, 3);
}

TEST_F(ShuttingDown, AsksFromTheLastDocumentToTheFirst) {
    OpenThreeModified();
    Questions.Answers = {MessageAnswer::No, MessageAnswer::No, MessageAnswer::No};

    EXPECT_TRUE(Closing.Run());

    EXPECT_THAT(Steps(), ElementsAre(DocumentQuestion, "window.Close /j/c.prg", DocumentQuestion,
                                     "window.Close /j/b.prg", DocumentQuestion,
                                     "window.Close /j/a.prg", SettingsWritten));
}

TEST_F(ShuttingDown, ShowsEachDocumentBeforeItsQuestion) {
    OpenThreeModified();
    Walk.tabDocuments_Click(2);
    Log.Clear();
    Questions.Answers = {MessageAnswer::No, MessageAnswer::Cancel};

    Closing.Run();

    EXPECT_THAT(
        Log.CallsOf({"tabs.SelectTab", "dialogs."}),
        ElementsAre("tabs.SelectTab 4", DocumentQuestion, "tabs.SelectTab 3", DocumentQuestion));
}

TEST_F(ShuttingDown, LeavesTheRefusedDocumentAndTheEarlierOnesOpen) {
    OpenThreeModified();
    FakeDocumentWindow &last = WindowOf(3);
    Questions.Answers = {MessageAnswer::No, MessageAnswer::Cancel};

    EXPECT_FALSE(Closing.Run());

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_TRUE(last.Closed);
    EXPECT_EQ(WindowOf(1).Caption(), QString("/j/a.prg"));
    EXPECT_EQ(WindowOf(2).Caption(), QString("/j/b.prg"));
    EXPECT_EQ(Registry.CurrentIndex, 2);
    EXPECT_EQ(Questions.Messages.size(), 2U);
}

TEST_F(ShuttingDown, WritesNoSettingsAfterARefusal) {
    OpenThreeModified();
    Questions.Answers = {MessageAnswer::No, MessageAnswer::No, MessageAnswer::Cancel};

    EXPECT_FALSE(Closing.Run());

    EXPECT_THAT(Log.CallsOf({"profile."}), IsEmpty());
    EXPECT_EQ(Registry.DocumentCount, 1);
}

TEST_F(ShuttingDown, KeepsAProjectClosedThatWasClosedBeforeTheRefusal) {
    OpenThreeModified();
    OpenProject.File = "/j/juego.fp";
    Questions.Answers = {MessageAnswer::Cancel};

    EXPECT_FALSE(Closing.Run());

    EXPECT_EQ(OpenProject.File, QString());
    EXPECT_EQ(Registry.DocumentCount, 3);
}

TEST_F(ShuttingDown, CanBeTriedAgainAfterARefusal) {
    OpenThreeModified();
    Questions.Answers = {MessageAnswer::Cancel, MessageAnswer::Yes, MessageAnswer::Yes,
                         MessageAnswer::Yes};
    ASSERT_FALSE(Closing.Run());

    EXPECT_TRUE(Closing.Run());

    EXPECT_EQ(Log.Calls().back(), SettingsWritten);
}

TEST_F(ShuttingDown, SavesWhatThePersonWantsSaved) {
    OpenThreeModified();
    EditorOf(2).Content = "new text";
    Questions.Answers = {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::No};

    EXPECT_TRUE(Closing.Run());

    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), ElementsAre("editor.SaveFile /j/b.prg"));
    EXPECT_EQ(Disk.Texts["/j/b.prg"], QString("new text"));
}

} // namespace
} // namespace Quillbox
