// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ProjectInfo.h"

#include "project/ProjectProgram.h"
#include "surfaces/MainWindowActivation.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheProjectInformation : public ProjectProgram {
  protected:
    TheProjectInformation() {
        Opened = {"/j/juego.fp", "Juego", "Eva", "m.prg", "a.bb|b.bb", "", false};
    }

    MainWindowActivation Activation{Main, Events};
    ProjectInfo Rules{Opened, Questions, Sources, Activation};
};

TEST_F(TheProjectInformation, ShowsTheProject) {
    const ProjectInfoTexts texts = Rules.Form_Load();

    EXPECT_EQ(texts.ProjectPath, "/j/juego.fp");
    EXPECT_EQ(texts.Title, "Juego");
    EXPECT_EQ(texts.Author, "Eva");
    EXPECT_EQ(texts.MainFile, "m.prg");
}

TEST_F(TheProjectInformation, ListsTheMainSourceAndThenTheOthers) {
    EXPECT_THAT(Rules.Form_Load().Files, ElementsAre("m.prg", "a.bb", "b.bb"));
}

TEST_F(TheProjectInformation, ListsTheMainSourceAloneWithoutOthers) {
    Opened.OtherSources.clear();

    EXPECT_THAT(Rules.Form_Load().Files, ElementsAre("m.prg"));
}

TEST_F(TheProjectInformation, OpenedAndClosedChangesNothing) {
    const Project before = Opened;

    Rules.Form_Unload(Rules.Form_Load());

    EXPECT_EQ(Opened.OtherSources, before.OtherSources);
    EXPECT_EQ(Opened.Title, before.Title);
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheProjectInformation, CountsAnotherTitleOrAuthorAsAChange) {
    for (QString ProjectInfoTexts::*box : {&ProjectInfoTexts::Title, &ProjectInfoTexts::Author}) {
        Opened.Modified = false;
        ProjectInfoTexts texts = Rules.Form_Load();
        texts.*box = "Otro";
        Rules.Form_Unload(texts);
        EXPECT_TRUE(Opened.Modified);
    }
    EXPECT_EQ(Opened.Title, "Otro");
    EXPECT_EQ(Opened.Author, "Otro");
}

TEST_F(TheProjectInformation, NeverChangesTheMainSource) {
    ProjectInfoTexts texts = Rules.Form_Load();
    texts.MainFile = "x.prg";
    texts.Files[0] = "y.prg";

    Rules.Form_Unload(texts);

    EXPECT_EQ(Opened.MainSource, "m.prg");
    EXPECT_EQ(Opened.OtherSources, "a.bb|b.bb");
}

TEST_F(TheProjectInformation, AddsAnExistingFileAsAChange) {
    Questions.Choices = {"/j/c.bb"};

    EXPECT_EQ(Rules.cmdAñadir_Click(), "/j/c.bb");

    EXPECT_EQ(Questions.Choosers[0].Filter, "Programas de BlitzBasic3D (*.bb)|*.bb");
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::FileMustExist);
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(TheProjectInformation, AddsNothingWhenTheChooserIsCancelled) {
    EXPECT_EQ(Rules.cmdAñadir_Click(), std::nullopt);
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheProjectInformation, RemovesNothingWithoutASelection) {
    EXPECT_FALSE(Rules.cmdBorrar_Click(std::nullopt));

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheProjectInformation, RefusesToRemoveTheMainSource) {
    EXPECT_FALSE(Rules.cmdBorrar_Click(0));

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, "No puedes borrar el archivo principal.");
    EXPECT_EQ(Questions.Messages[0].Caption, "Error");
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_FALSE(Opened.Modified);
}

TEST_F(TheProjectInformation, CountsARemovedFileAsAChangeThoughItIsAddedBack) {
    ProjectInfoTexts texts = Rules.Form_Load();
    EXPECT_TRUE(Rules.cmdBorrar_Click(2));
    Rules.Form_Unload(texts); // the list as it was

    EXPECT_EQ(Opened.OtherSources, "a.bb|b.bb");
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(TheProjectInformation, OpensTheFileOfADoubleClickAndBringsTheMainWindowForward) {
    StoreSource("a.bb");

    Rules.lstFiles_DblClick("a.bb");

    EXPECT_THAT(
        Log.CallsOf({"files.", "editor.OpenFile", "main.Activate", "events.ProcessPendingEvents"}),
        ElementsAre("files.CanRead a.bb", "editor.OpenFile a.bb", "main.Activate",
                    "events.ProcessPendingEvents"));
}

TEST_F(TheProjectInformation, WarnsAboutAMissingFileAndBringsTheMainWindowForward) {
    Rules.lstFiles_DblClick("falta.bb");

    EXPECT_THAT(Log.Calls(), ElementsAre("files.CanRead falta.bb",
                                         "dialogs.ShowMessage El archivo falta.bb no existe.",
                                         "main.Activate", "events.ProcessPendingEvents"));
}

TEST_F(TheProjectInformation, BringsTheMainWindowForwardWithoutASelection) {
    Rules.lstFiles_DblClick(std::nullopt);

    EXPECT_THAT(Log.Calls(), ElementsAre("main.Activate", "events.ProcessPendingEvents"));
}

} // namespace
} // namespace Quillbox
