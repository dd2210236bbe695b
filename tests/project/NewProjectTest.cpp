// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/NewProject.h"
#include "base/Version.h"

#include "project/ProjectProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class TheNewProjectCommand : public ProjectProgram {};

TEST_F(TheNewProjectCommand, OpensWhatTheDialogMade) {
    StoreProject("Nuevo");
    InNewProject = [this] { Opened.File = "/j/nuevo.fp"; };

    ClickNewProject();

    EXPECT_EQ(Steps().front(), "frmNewProject");
    EXPECT_EQ(Main.Caption, "Quillbox v" QUILLBOX_VERSION " - <Proyecto: Nuevo>");
    EXPECT_TRUE(Main.Enabled["mnuArchivo_GuardarProyecto"]);
}

TEST_F(TheNewProjectCommand, DoesNothingMoreWhenTheDialogIsCancelled) {
    ClickNewProject();

    EXPECT_THAT(Log.Calls(), ElementsAre("frmNewProject"));
}

TEST_F(TheNewProjectCommand, ClosesTheOpenProjectFirst) {
    OpenFrom("/j/uno.fp");

    ClickNewProject();

    EXPECT_EQ(Steps().front(),
              "main.SetCaption Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>");
    EXPECT_EQ(Steps().back(), "frmNewProject");
    EXPECT_EQ(Opened.File, "");
}

TEST_F(TheNewProjectCommand, AsksOnceAboutTheOpenProjectsChanges) {
    OpenFrom("/j/uno.fp");
    Opened.Modified = true;
    Questions.Answers = {MessageAnswer::Yes};
    InNewProject = [this] { Opened.File = "/j/nuevo.fp"; };

    ClickNewProject();

    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Profile.WrittenFile, "/j/uno.fp");
    EXPECT_EQ(Opened.File, "/j/nuevo.fp");
}

TEST_F(TheNewProjectCommand, ReadsTheProjectAgainWhenQuestionAndDialogAreCancelled) {
    OpenFrom("/j/uno.fp");
    Opened.Title = "Cambiado en memoria";
    Opened.Modified = true;
    Questions.Answers = {MessageAnswer::Cancel};

    ClickNewProject();

    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Opened.File, "/j/uno.fp");
    EXPECT_EQ(Opened.Title, "Juego");
    EXPECT_TRUE(Opened.Modified);
}

class TheNewProjectDialog : public ProjectProgram {
  protected:
    const NewProjectTexts Full{"Juego", "Eva", "m.prg", "/j/juego.fp"};
    NewProject Rules{Opened, Profile, Questions};
};

TEST_F(TheNewProjectDialog, WritesTheFiveKeysInOneGoAndNamesTheFile) {
    EXPECT_EQ(Rules.cmdAceptar_Click(Full), DialogState::Closes);

    EXPECT_THAT(Log.Calls(), ElementsAre("profile.WriteStrings Proyecto /j/juego.fp"));
    EXPECT_THAT(Profile.Written, ElementsAre(Pair("Titulo", "Juego"), Pair("Autor", "Eva"),
                                             Pair("MainSource", "m.prg"), Pair("OtrosSource", ""),
                                             Pair("ToDoList", "")));
    EXPECT_EQ(Opened.File, "/j/juego.fp");
}

TEST_F(TheNewProjectDialog, SetsNothingButTheFile) {
    Rules.cmdAceptar_Click(Full);

    EXPECT_EQ(Opened.Title, "");
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheNewProjectDialog, DoesNotCheckWhetherWritingFailed) {
    Profile.WritesFail = true;

    EXPECT_EQ(Rules.cmdAceptar_Click(Full), DialogState::Closes);

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_EQ(Opened.File, "/j/juego.fp");
}

TEST_F(TheNewProjectDialog, RefusesAnyEmptyTextBox) {
    Opened.File = "/j/uno.fp";
    for (QString NewProjectTexts::*box : {&NewProjectTexts::Title, &NewProjectTexts::Author,
                                          &NewProjectTexts::MainSource, &NewProjectTexts::Target}) {
        NewProjectTexts texts = Full;
        texts.*box = QString();
        EXPECT_EQ(Rules.cmdAceptar_Click(texts), DialogState::Stays);
    }

    ASSERT_EQ(Questions.Messages.size(), 4U);
    EXPECT_EQ(Questions.Messages[3].Text, "Debes rellenar todos los campos para poder continuar.");
    EXPECT_EQ(Questions.Messages[3].Caption, "Error");
    EXPECT_EQ(Questions.Messages[3].Icon, MessageIcon::Critical);
    EXPECT_EQ(Questions.Messages[3].Buttons, MessageButtons::Ok);
    EXPECT_EQ(Profile.WrittenFile, "");
    EXPECT_EQ(Opened.File, "/j/uno.fp");
}

TEST_F(TheNewProjectDialog, BrowsesForAnExistingMainSource) {
    Questions.Choices = {"/j/m.prg"};

    EXPECT_EQ(Rules.cmdBrowse_Click(), "/j/m.prg");

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowOpen Programas de Fenix (*.prg)|*.prg"));
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::FileMustExist);
}

TEST_F(TheNewProjectDialog, BrowsesForAProjectFileAndAsksBeforeOverwriting) {
    Questions.Choices = {"/j/juego.fp"};

    EXPECT_EQ(Rules.cmdBrowseTarget_Click(), "/j/juego.fp");

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowSave Proyectos de Fenix (*.fp)|*.fp"));
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::OverwritePrompt);
}

TEST_F(TheNewProjectDialog, HandsOnThatAChooserWasCancelled) {
    EXPECT_EQ(Rules.cmdBrowse_Click(), std::nullopt);
    EXPECT_EQ(Rules.cmdBrowseTarget_Click(), std::nullopt);
}

} // namespace
} // namespace Quillbox
