// SPDX-License-Identifier: GPL-3.0-or-later
#include "BuildProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string AskForName = "dialogs.ShowSave Ejecutables (*.exe)|*.exe";

class BuildingAnExecutable : public BuildProgram {
  protected:
    BuildingAnExecutable() { Questions.Choices = {QStringLiteral("/j/mi juego.exe")}; }

    void BuildIt() { Build.mnuPrograma_CrearEXE_Click(); }
    std::string Proposal() {
        BuildIt();
        return Questions.Choosers.at(0).FileName.toStdString();
    }
};

TEST_F(BuildingAnExecutable, AsksThenSavesThenSetsTheVariableThenCompiles) {
    EditorOf(1).Modified = true;
    BuildIt();
    EXPECT_THAT(
        Steps(),
        ElementsAre(
            AskForName,                     //
            "editor.SaveFile /j/juego.prg", // the active document
            "editor.SaveFile /j/juego.prg", // then all that have a name
            "programs.SetVariable blitzpath C:\\Archivos de programa\\Blitz3D\\",
            "console.StartProcess C:\\fenix\\fxc.exe -o \"/j/mi juego.exe\" \"/j/juego.prg\" 4",
            "main.SetLog Listo", "files.Write " + LogFile.toStdString(),
            "files.Read " + LogFile.toStdString()));
}

TEST_F(BuildingAnExecutable, AsksBeforeAnExistingFileIsReplaced) {
    BuildIt();
    EXPECT_EQ(static_cast<int>(Questions.Choosers.at(0).Flags), 2);
}

TEST_F(BuildingAnExecutable, ProposesTheNameWithExeForItsLastTwoCharacters) {
    Open({"/j/juego.bb"});
    EXPECT_EQ(Proposal(), "juego.exe");
}

TEST_F(BuildingAnExecutable, ProposesForALongerExtensionWhatTheCutLeaves) {
    EXPECT_EQ(Proposal(), "juego.pexe");
}

TEST_F(BuildingAnExecutable, ProposesTheUntitledNameCutInTheSameWay) {
    Documents.NewDocument();
    EXPECT_EQ(Proposal(), "< sin títuloexe");
}

TEST_F(BuildingAnExecutable, ProposesOnlyTheExtensionForANameOfTwoCharacters) {
    Open({"/j/ab"});
    EXPECT_EQ(Proposal(), "exe");
    EXPECT_EQ(CommandLines().size(), 1U);
}

TEST_F(BuildingAnExecutable, AsksWithoutAProposalForAShorterNameAndThenDoesNothing) {
    Open({"/j/a"});
    EXPECT_EQ(Proposal(), "");
    EXPECT_THAT(Log.Calls(), ElementsAre(AskForName));
}

TEST_F(BuildingAnExecutable, AsksAndThenDoesNothingWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    EXPECT_EQ(ErrorNumberOf([this] { BuildIt(); }), 0);
    EXPECT_THAT(Log.Calls(), ElementsAre(AskForName));
}

TEST_F(BuildingAnExecutable, DoesNothingWhenTheChooserIsCancelled) {
    Questions.Choices.clear();
    EditorOf(1).Modified = true;
    BuildIt();
    EXPECT_THAT(Log.Calls(), ElementsAre(AskForName));
    EXPECT_TRUE(EditorOf(1).Modified);
}

TEST_F(BuildingAnExecutable, SavesEveryNamedDocument) {
    Open({"/j/otro.prg"});
    EditorOf(1).Modified = true;
    BuildIt();
    EXPECT_FALSE(EditorOf(1).Modified);
}

TEST_F(BuildingAnExecutable, AsksForTheSourcesNameAfterTheExecutables) {
    Documents.NewDocument();
    Questions.Choices = {QStringLiteral("/j/a.exe"), QStringLiteral("/j/a.prg")};
    Log.Clear();
    BuildIt();
    EXPECT_THAT(Log.CallsOf({"dialogs."}),
                ElementsAre(AskForName, "dialogs.ShowSave Programas de Fenix (*.prg)|*.prg"));
    EXPECT_THAT(CommandLines(), ElementsAre("C:\\fenix\\fxc.exe -o \"/j/a.exe\" \"/j/a.prg\""));
}

TEST_F(BuildingAnExecutable, GoesOnWithTheUntitledNameWhenSaveAsIsCancelled) {
    Documents.NewDocument();
    Questions.Choices = {QStringLiteral("/j/a.exe")};
    BuildIt();
    EXPECT_THAT(CommandLines(),
                ElementsAre("C:\\fenix\\fxc.exe -o \"/j/a.exe\" \"< sin título >\""));
}

TEST_F(BuildingAnExecutable, KeepsTheOldLogPaneAndStillReadsAnOutputThatIsTooShort) {
    Console.Output = "x";
    Reader.CompileErrorFound = true;
    EXPECT_EQ(ErrorNumberOf([this] { BuildIt(); }), 0);
    EXPECT_EQ(Main.LogText, QString("(nada)"));
    EXPECT_EQ(Stored.Contents[LogFile], QByteArray("x\r\n"));
    EXPECT_FALSE(Reader.CompileErrorFound);
}

TEST_F(BuildingAnExecutable, PassesOverALogFileThatCannotBeWritten) {
    Stored.WritesFail = true;
    EXPECT_EQ(ErrorNumberOf([this] { BuildIt(); }), 0);
    EXPECT_EQ(Main.LogText, QString("Listo"));
}

TEST_F(BuildingAnExecutable, PassesOverAnErrorLineWithoutItsParts) {
    Console.Output = "Error in file juego.prg\r\n";
    EXPECT_EQ(ErrorNumberOf([this] { BuildIt(); }), 0);
    EXPECT_EQ(Main.LogText, QString("Error in file juego.prg"));
    EXPECT_THAT(Questions.Messages, IsEmpty());
}

TEST_F(BuildingAnExecutable, LeavesTheErrorFlagSetAfterAnError) {
    Console.Output = "Error in file /j/juego.prg at line 3: x\r\n";
    BuildIt();
    EXPECT_TRUE(Reader.CompileErrorFound);
}

TEST_F(BuildingAnExecutable, NeverStartsTheProgram) {
    BuildIt();
    EXPECT_THAT(Log.CallsOf({"programs.Start"}), IsEmpty());
}

} // namespace
} // namespace Quillbox
