// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Version.h"
#include "project/ProjectProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const std::string Question =
    "dialogs.ShowMessage El proyecto ha sido modificado, ¿quieres guardar los cambios?";
const std::string Closed = "main.SetCaption Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>";
const std::string Disabling[] = {"main.EnableCommand mnuArchivo_GuardarProyecto false",
                                 "main.EnableCommand mnuArchivo_GuardarProyectoComo false",
                                 "main.EnableCommand mnuArchivo_CerrarProyecto false"};

class SavingAProject : public ProjectProgram {
  protected:
    SavingAProject() {
        OpenFrom("/j/juego.fp");
        Opened.Modified = true;
    }
};
class ClosingAProject : public SavingAProject {};

TEST_F(SavingAProject, WritesAllFieldsAsTheyAreInOneGo) {
    Opened = {"/j/juego.fp", "Juego", "Eva", "C:\\j\\m.prg", "a.bb|b.bb", "una|1|otra|0", true};

    Projects.mnuArchivo_GuardarProyecto_Click();

    EXPECT_THAT(Steps(), ElementsAre("profile.WriteStrings Proyecto /j/juego.fp"));
    EXPECT_THAT(Profile.Written,
                ElementsAre(Pair("Titulo", "Juego"), Pair("Autor", "Eva"),
                            Pair("MainSource", "C:\\j\\m.prg"), Pair("OtrosSource", "a.bb|b.bb"),
                            Pair("ToDoList", "una|1|otra|0")));
}

TEST_F(SavingAProject, LeavesNothingModified) {
    Projects.mnuArchivo_GuardarProyecto_Click();

    EXPECT_FALSE(Opened.Modified);
}

TEST_F(SavingAProject, DoesNotCheckWhetherWritingFailed) {
    Profile.WritesFail = true;

    Projects.mnuArchivo_GuardarProyecto_Click();

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(SavingAProject, AsWritesToTheChosenFileAndKeepsTheTitleOfTheWindow) {
    Opened.Title = "Otro";
    Questions.Choices = {"/j/copia.fp"};

    Projects.mnuArchivo_GuardarProyectoComo_Click();

    EXPECT_THAT(Steps(), ElementsAre("dialogs.ShowSave Proyectos de Fenix (*.fp)|*.fp",
                                     "profile.WriteStrings Proyecto /j/copia.fp"));
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::OverwritePrompt);
    EXPECT_EQ(static_cast<int>(Questions.Choosers[0].Flags), 2);
    EXPECT_EQ(Opened.File, "/j/copia.fp");
    EXPECT_EQ(Main.Caption, "Quillbox v" QUILLBOX_VERSION " - <Proyecto: Juego>");
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(SavingAProject, AsChangesNothingWhenTheChooserIsCancelled) {
    Projects.mnuArchivo_GuardarProyectoComo_Click();

    EXPECT_THAT(Steps(), ElementsAre("dialogs.ShowSave Proyectos de Fenix (*.fp)|*.fp"));
    EXPECT_EQ(Opened.File, "/j/juego.fp");
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(ClosingAProject, WithoutChangesAsksNothing) {
    Opened.Modified = false;

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Steps(), ElementsAre(Closed, Disabling[0], Disabling[1], Disabling[2]));
    EXPECT_EQ(Opened.File, "");
}

TEST_F(ClosingAProject, AfterSavingItUnderAnotherNameAsksNothing) {
    Questions.Choices = {"/j/copia.fp"};
    Projects.mnuArchivo_GuardarProyectoComo_Click();

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_EQ(Opened.File, "");
}

TEST_F(ClosingAProject, AsksWithAnExclamationAndThreeAnswers) {
    Projects.mnuArchivo_CerrarProyecto_Click();

    ASSERT_EQ(Questions.Messages.size(), 1U);
    const Message &question = Questions.Messages[0];
    EXPECT_EQ(question.Text, "El proyecto ha sido modificado, ¿quieres guardar los cambios?");
    EXPECT_EQ(question.Caption, "Aviso");
    EXPECT_EQ(question.Icon, MessageIcon::Exclamation);
    EXPECT_EQ(question.Buttons, MessageButtons::YesNoCancel);
}

TEST_F(ClosingAProject, AnsweredYesSavesAndCloses) {
    Questions.Answers = {MessageAnswer::Yes};

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question, "profile.WriteStrings Proyecto /j/juego.fp", Closed,
                                     Disabling[0], Disabling[1], Disabling[2]));
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(ClosingAProject, AnsweredCancelChangesNothing) {
    Questions.Answers = {MessageAnswer::Cancel};

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question));
    EXPECT_EQ(Opened.File, "/j/juego.fp");
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(ClosingAProject, AnsweredNoClosesWithoutSaving) {
    Questions.Answers = {MessageAnswer::No};

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Steps(), ElementsAre(Question, Closed, Disabling[0], Disabling[1], Disabling[2]));
    EXPECT_EQ(Opened.File, "");
}

TEST_F(ClosingAProject, LeavesTheFieldsAsTheyWere) {
    Opened = {"/j/juego.fp", "Juego", "Eva", "m.prg", "a.bb", "una|1", false};

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_EQ(Opened.Title, "Juego");
    EXPECT_EQ(Opened.Author, "Eva");
    EXPECT_EQ(Opened.MainSource, "m.prg");
    EXPECT_EQ(Opened.OtherSources, "a.bb");
    EXPECT_EQ(Opened.ToDoList, "una|1");
}

TEST_F(ClosingAProject, AnsweredNoLetsTheNextProjectAskThoughNothingInItChanged) {
    Questions.Answers = {MessageAnswer::No, MessageAnswer::No};
    Projects.mnuArchivo_CerrarProyecto_Click();
    Projects.OpenProject("/j/otro.fp");
    Log.Clear();

    Projects.mnuArchivo_CerrarProyecto_Click();

    EXPECT_THAT(Log.CallsOf({"dialogs."}), ElementsAre(Question));
}

} // namespace
} // namespace Quillbox
