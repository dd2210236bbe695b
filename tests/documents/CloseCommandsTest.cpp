// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeProgram.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Question =
    "dialogs.ShowMessage El archivo ha sido modificado. ¿Quieres guardar los cambios?";

class CloseCommands : public FakeProgram {
  protected:
    void Change(int position) {
        EditorOf(position).Content = "changed";
        EditorOf(position).Modified = true;
    }
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"dialogs.", "editor.SaveFile", "window.Close"});
    }
};

TEST_F(CloseCommands, CloseAnUnmodifiedDocumentWithoutAQuestion) {
    Open({"/j/a.prg"});

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Steps(), ElementsAre("window.Close /j/a.prg"));
    EXPECT_EQ(Registry.DocumentCount, 0);
}

TEST_F(CloseCommands, AskAboutAModifiedDocument) {
    Open({"/j/a.prg"});
    Change(1);

    Documents.mnuArchivo_Cerrar_Click();

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text,
              QString("El archivo ha sido modificado. ¿Quieres guardar los cambios?"));
    EXPECT_EQ(Questions.Messages[0].Caption, QString("Atención"));
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Question);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::YesNoCancel);
}

TEST_F(CloseCommands, LeaveTheDocumentOpenAfterCancel) {
    Open({"/j/a.prg"});
    Change(1);
    Questions.Answers = {MessageAnswer::Cancel};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Log.Calls(), ElementsAre(Question));
    EXPECT_EQ(Registry.DocumentCount, 1);
    EXPECT_TRUE(EditorOf(1).Modified);
}

TEST_F(CloseCommands, DropTheChangesAfterNo) {
    Open({"/j/a.prg"});
    Change(1);
    Questions.Answers = {MessageAnswer::No};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question, "window.Close /j/a.prg"));
    EXPECT_EQ(Disk.Texts["/j/a.prg"], QString("text of /j/a.prg"));
}

TEST_F(CloseCommands, SaveANamedDocumentAfterYes) {
    Open({"/j/a.prg"});
    Change(1);
    Questions.Answers = {MessageAnswer::Yes};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Steps(),
                ElementsAre(Question, "editor.SaveFile /j/a.prg", "window.Close /j/a.prg"));
    EXPECT_EQ(Disk.Texts["/j/a.prg"], QString("changed"));
}

TEST_F(CloseCommands, AskForANameOfAnUntitledDocumentAfterYes) {
    Documents.NewDocument();
    Change(1);
    Log.Clear();
    Questions.Answers = {MessageAnswer::Yes};
    Questions.Choices = {"/j/a.prg"};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question, "dialogs.ShowSave Programas de Fenix (*.prg)|*.prg",
                                     "editor.SaveFile /j/a.prg", "window.Close /j/a.prg"));
    EXPECT_EQ(Disk.Texts["/j/a.prg"], QString("changed"));
}

/// Who answers Yes and then cancels the chooser loses the text: closing follows in every case.
TEST_F(CloseCommands, CloseAnUntitledDocumentAfterYesAndACancelledChooser) {
    Documents.NewDocument();
    Change(1);
    Log.Clear();
    Questions.Answers = {MessageAnswer::Yes};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), IsEmpty());
}

TEST_F(CloseCommands, CloseADocumentThatCannotBeWrittenAfterYes) {
    Open({"/j/a.prg"});
    Change(1);
    Disk.Broken.insert("/j/a.prg");
    Questions.Answers = {MessageAnswer::Yes};

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_EQ(Registry.DocumentCount, 0);
}

TEST_F(CloseCommands, DoNothingOnTheHelpPage) {
    Open({"/j/a.prg"});
    Walk.tabDocuments_Click(1);
    Log.Clear();

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Log.Calls(), IsEmpty());
    EXPECT_EQ(Registry.DocumentCount, 1);
}

TEST_F(CloseCommands, CloseOnlyTheCurrentDocument) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
    Change(2);
    Walk.tabDocuments_Click(2);
    Log.Clear();

    Documents.mnuArchivo_Cerrar_Click();

    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
    EXPECT_THAT(Tabs.Captions, ElementsAre("Ayuda", "b.prg", "c.prg"));
}

TEST_F(CloseCommands, CloseAllFromTheLastToTheFirst) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});

    Documents.mnuArchivo_CerrarTodo_Click();

    EXPECT_THAT(Steps(), ElementsAre("window.Close /j/c.prg", "window.Close /j/b.prg",
                                     "window.Close /j/a.prg"));
    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_EQ(Registry.CurrentIndex, 0);
}

TEST_F(CloseCommands, ShowEachDocumentBeforeTheyAskAboutIt) {
    Open({"/j/a.prg", "/j/b.prg"});
    Change(1);
    Change(2);
    Walk.tabDocuments_Click(1);
    Log.Clear();
    Questions.Answers = {MessageAnswer::No, MessageAnswer::Cancel};

    Documents.mnuArchivo_CerrarTodo_Click();

    EXPECT_THAT(Log.CallsOf({"tabs.SelectTab", "dialogs."}),
                ElementsAre("tabs.SelectTab 3", Question, "tabs.SelectTab 2", Question));
}

TEST_F(CloseCommands, StopAtTheFirstRefusalWhenTheyCloseAll) {
    Open({"/j/a.prg", "/j/b.prg", "/j/c.prg"});
    for (const int position : {1, 2, 3})
        Change(position);
    Questions.Answers = {MessageAnswer::No, MessageAnswer::Cancel, MessageAnswer::No};

    Documents.mnuArchivo_CerrarTodo_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question, "window.Close /j/c.prg", Question));
    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 2);
}

TEST_F(CloseCommands, CloseAllAlsoFromTheHelpPage) {
    Open({"/j/a.prg", "/j/b.prg"});
    Walk.tabDocuments_Click(1);

    Documents.mnuArchivo_CerrarTodo_Click();

    EXPECT_EQ(Registry.DocumentCount, 0);
}

TEST_F(CloseCommands, DoNothingWithoutDocuments) {
    Documents.mnuArchivo_CerrarTodo_Click();

    EXPECT_THAT(Log.Calls(), IsEmpty());
}

} // namespace
} // namespace Quillbox
