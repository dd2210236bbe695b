// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Version.h"
#include "project/ProjectProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> Enabling = {"main.EnableCommand mnuArchivo_GuardarProyecto true",
                                           "main.EnableCommand mnuArchivo_GuardarProyectoComo true",
                                           "main.EnableCommand mnuArchivo_CerrarProyecto true"};

class OpeningAProject : public ProjectProgram {};

TEST_F(OpeningAProject, ReadsTheKeysShowsTheTitleEnablesTheItemsAndOpensTheMainSource) {
    StoreProject("Juego");
    StoreSource("m.prg");

    Projects.OpenProject("/j/juego.fp");

    EXPECT_THAT(Steps(),
                ElementsAre("profile.ReadString Proyecto Titulo 5120 /j/juego.fp",
                            "profile.ReadString Proyecto Autor 5120 /j/juego.fp",
                            "profile.ReadString Proyecto MainSource 5120 /j/juego.fp",
                            "profile.ReadString Proyecto OtrosSource 5120 /j/juego.fp",
                            "profile.ReadString Proyecto ToDoList 5120 /j/juego.fp",
                            "main.SetCaption Quillbox v" QUILLBOX_VERSION " - <Proyecto: Juego>",
                            Enabling[0], Enabling[1], Enabling[2], "files.CanRead m.prg",
                            "editor.OpenFile m.prg"));
    EXPECT_EQ(Opened.File, "/j/juego.fp");
}

TEST_F(OpeningAProject, FillsEveryField) {
    Profile.Values = {{"Titulo", "Juego"},
                      {"Autor", "Eva"},
                      {"MainSource", "m.prg"},
                      {"OtrosSource", "a.bb|b.bb"},
                      {"ToDoList", "una|1|otra|0"}};

    Projects.OpenProject("/j/juego.fp");

    EXPECT_EQ(Opened.Title, "Juego");
    EXPECT_EQ(Opened.Author, "Eva");
    EXPECT_EQ(Opened.MainSource, "m.prg");
    EXPECT_EQ(Opened.OtherSources, "a.bb|b.bb");
    EXPECT_EQ(Opened.ToDoList, "una|1|otra|0");
}

TEST_F(OpeningAProject, DoesNotOpenTheOtherSources) {
    StoreProject("Juego");
    Profile.Values["OtrosSource"] = "a.bb|b.bb";
    for (const char *path : {"m.prg", "a.bb", "b.bb"})
        StoreSource(path);

    Projects.OpenProject("/j/juego.fp");

    EXPECT_EQ(Registry.DocumentCount, 1);
}

TEST_F(OpeningAProject, TakesTheDefaultsFromAFileWithoutItsSection) {
    Projects.OpenProject("/j/vacio.fp");

    EXPECT_EQ(Opened.Title, "Sin Titulo");
    EXPECT_EQ(Opened.Author, "Autor desconocido");
    EXPECT_EQ(Opened.MainSource, "Main.bb");
    EXPECT_EQ(Opened.OtherSources, "");
    EXPECT_EQ(Opened.ToDoList, "");
    EXPECT_EQ(Main.Caption, "Quillbox v" QUILLBOX_VERSION " - <Proyecto: Sin Titulo>");
}

TEST_F(OpeningAProject, CutsATitleAfter5119Characters) {
    StoreProject(QString(6000, u'x'));

    Projects.OpenProject("/j/juego.fp");

    EXPECT_EQ(Opened.Title, QString(5119, u'x'));
}

TEST_F(OpeningAProject, WarnsAboutAMissingMainSourceAndOpensAnyway) {
    StoreProject("Juego", "falta.prg");

    Projects.OpenProject("/j/juego.fp");

    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, "El archivo falta.prg no existe.");
    EXPECT_EQ(Opened.File, "/j/juego.fp");
    EXPECT_EQ(Registry.DocumentCount, 0);
    EXPECT_TRUE(Main.Enabled["mnuArchivo_CerrarProyecto"]);
}

TEST_F(OpeningAProject, SkipsARunTimeErrorOfItsMainSource) {
    StoreProject("Juego");
    StoreSource("m.prg");
    Events.WhilePumping = [] { throw PathAccessError(); };

    EXPECT_NO_THROW(Projects.OpenProject("/j/juego.fp"));

    EXPECT_EQ(Main.Caption, "Quillbox v" QUILLBOX_VERSION " - <Proyecto: Juego>");
    EXPECT_TRUE(Main.Enabled["mnuArchivo_CerrarProyecto"]);
}

TEST_F(OpeningAProject, AsksForAnExistingProjectFileWithoutAPath) {
    StoreProject("Juego");
    Questions.Choices = {"/j/elegido.fp"};

    Projects.mnuArchivo_AbrirProyecto_Click();

    ASSERT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_EQ(Questions.Choosers[0].Flags, FileChooserFlags::FileMustExist);
    EXPECT_EQ(static_cast<int>(Questions.Choosers[0].Flags), 4096);
    EXPECT_EQ(Questions.Choosers[0].Filter, "Proyectos de Fenix (*.fp)|*.fp");
    EXPECT_EQ(Opened.File, "/j/elegido.fp");
}

TEST_F(OpeningAProject, ChangesNothingWhenTheChooserIsCancelled) {
    OpenFrom("/j/uno.fp");

    Projects.mnuArchivo_AbrirProyecto_Click();

    EXPECT_THAT(Log.Calls(), ElementsAre("dialogs.ShowOpen Proyectos de Fenix (*.fp)|*.fp"));
    EXPECT_EQ(Opened.File, "/j/uno.fp");
    EXPECT_EQ(Opened.Title, "Juego");
}

TEST_F(OpeningAProject, NeitherAsksAboutNorSavesTheOneThatWasOpenAndKeepsModified) {
    OpenFrom("/j/uno.fp");
    Opened.Modified = true;

    Projects.OpenProject("/j/dos.fp");

    EXPECT_THAT(Questions.Messages, IsEmpty());
    EXPECT_THAT(Log.CallsOf({"profile.WriteStrings"}), IsEmpty());
    EXPECT_EQ(Opened.File, "/j/dos.fp");
    EXPECT_TRUE(Opened.Modified);
}

TEST_F(OpeningAProject, ActivatesAMainSourceThatIsOpenAlready) {
    OpenFrom("/j/uno.fp");
    Open({"/j/otro.prg"});

    Projects.OpenProject("/j/uno.fp");

    EXPECT_EQ(Registry.DocumentCount, 2);
    EXPECT_EQ(Registry.CurrentIndex, 1);
}

} // namespace
} // namespace Quillbox
