// SPDX-License-Identifier: GPL-3.0-or-later
#include "BuildProgram.h"

namespace Quillbox {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string SetBlitzPath =
    "programs.SetVariable blitzpath C:\\Archivos de programa\\Blitz3D\\";
const std::string CompileGame = "console.StartProcess C:\\fenix\\fxc.exe \"/j/juego.prg\" 4";
const std::string WriteLog = "files.Write " + LogFile.toStdString();
const std::string ReadLog = "files.Read " + LogFile.toStdString();

class CheckingForErrors : public BuildProgram {
  protected:
    void Check() { Build.mnuPrograma_ComprobarErrores_Click(); }
};

TEST_F(CheckingForErrors, SetsTheVariableBeforeItSavesAndCompiles) {
    EditorOf(1).Modified = true;
    Check();
    EXPECT_THAT(Steps(), ElementsAre(SetBlitzPath, "editor.SaveFile /j/juego.prg", CompileGame,
                                     "main.SetLog Listo", WriteLog, ReadLog));
}

TEST_F(CheckingForErrors, DoesNotSaveAnUnmodifiedDocument) {
    Check();
    EXPECT_THAT(Steps(),
                ElementsAre(SetBlitzPath, CompileGame, "main.SetLog Listo", WriteLog, ReadLog));
}

TEST_F(CheckingForErrors, LeavesOtherModifiedDocumentsUnsaved) {
    Open({"/j/otro.prg"});
    EditorOf(1).Modified = true;
    EditorOf(2).Modified = true;
    Check();
    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), ElementsAre("editor.SaveFile /j/otro.prg"));
    EXPECT_TRUE(EditorOf(1).Modified);
}

TEST_F(CheckingForErrors, CompilesTheCurrentDocument) {
    Open({"/otra carpeta/b.prg"});
    Check();
    EXPECT_THAT(CommandLines(), ElementsAre("C:\\fenix\\fxc.exe \"/otra carpeta/b.prg\""));
}

TEST_F(CheckingForErrors, AddsNoQuotesToTheCompilersPath) {
    Options.FenixCPath = QStringLiteral("\"C:\\mis juegos\\fxc.exe\" -v");
    Check();
    EXPECT_THAT(CommandLines(), ElementsAre("\"C:\\mis juegos\\fxc.exe\" -v \"/j/juego.prg\""));
}

TEST_F(CheckingForErrors, RunsEvenWithoutACompilersPath) {
    Options.FenixCPath.clear();
    Check();
    EXPECT_THAT(CommandLines(), ElementsAre(" \"/j/juego.prg\""));
}

TEST_F(CheckingForErrors, AsksForANameOfAnUnmodifiedUntitledDocument) {
    Documents.NewDocument();
    Log.Clear();
    Questions.Choices = {QStringLiteral("/j/nuevo.prg")};

    Check();

    EXPECT_THAT(Log.CallsOf({"dialogs.", "editor.SaveFile", "window.SetCaption"}),
                ElementsAre("dialogs.ShowSave Programas de Fenix (*.prg)|*.prg",
                            "editor.SaveFile /j/nuevo.prg", "window.SetCaption /j/nuevo.prg"));
    EXPECT_THAT(CommandLines(), ElementsAre("C:\\fenix\\fxc.exe \"/j/nuevo.prg\""));
}

TEST_F(CheckingForErrors, GoesOnWithTheUntitledNameWhenSaveAsIsCancelled) {
    Documents.NewDocument();
    EditorOf(2).Modified = true;
    Log.Clear();

    Check();

    EXPECT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}), IsEmpty());
    EXPECT_THAT(CommandLines(), ElementsAre("C:\\fenix\\fxc.exe \"< sin título >\""));
}

TEST_F(CheckingForErrors, GoesOnWhenTheDocumentCannotBeSaved) {
    Disk.Broken.insert(QStringLiteral("/j/juego.prg"));
    EditorOf(1).Modified = true;
    Check();
    EXPECT_TRUE(EditorOf(1).Modified);
    EXPECT_EQ(CommandLines().size(), 1U);
}

TEST_F(CheckingForErrors, ShowsTheOutputWithoutItsLastTwoCharacters) {
    Console.Output = "uno\r\ndos\r\n";
    Check();
    EXPECT_EQ(Main.LogText, QString("uno\r\ndos"));
}

TEST_F(CheckingForErrors, CutsTwoCharactersEvenWhenTheyAreNoLineEnd) {
    Console.Output = "uno\n";
    Check();
    EXPECT_EQ(Main.LogText, QString("un"));
}

TEST_F(CheckingForErrors, ShowsAnOutputOfTwoCharactersAsAnEmptyLog) {
    Console.Output = "\r\n";
    Check();
    EXPECT_EQ(Main.LogText, QString());
}

TEST_F(CheckingForErrors, EndsInErrorFiveWhenTheOutputIsShorterThanTwoCharacters) {
    for (const char *output : {"", "x"}) {
        Console.Output = output;
        EXPECT_EQ(ErrorNumberOf([this] { Check(); }), 5) << '"' << output << '"';
        EXPECT_EQ(Main.LogText, QString("(nada)"));
    }
    EXPECT_THAT(Log.CallsOf({"files."}), IsEmpty());
}

TEST_F(CheckingForErrors, ShowsAnErrorOfTheRunnerLikeOutput) {
    Console.ProcessFails = true;
    Console.Error = 2;
    Check();
    EXPECT_EQ(Main.LogText, QString("Error: CreateProcess failed."));
    EXPECT_FALSE(Reader.CompileErrorFound);
    EXPECT_THAT(Questions.Messages, IsEmpty());
}

TEST_F(CheckingForErrors, ReadsTheWholeOutputForErrors) {
    Console.Output = "Error in file /j/juego.prg at line 3:x";
    Check();
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, QString("Error in file /j/juego.prg at line 3:x"));
    EXPECT_EQ(Main.LogText, QString("Error in file /j/juego.prg at line 3"));
}

TEST_F(CheckingForErrors, LeavesTheErrorFlagSet) {
    Console.Output = "Error in file /j/juego.prg at line 3:x\r\n";
    Check();
    EXPECT_TRUE(Reader.CompileErrorFound);
}

TEST_F(CheckingForErrors, NeverStartsTheProgram) {
    Check();
    EXPECT_THAT(Log.Calls(), Not(Contains(StartsWith("programs.Start"))));
}

TEST_F(CheckingForErrors, EndsInErrorNineAfterTheVariableWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    EXPECT_EQ(ErrorNumberOf([this] { Check(); }), 9);
    EXPECT_THAT(Steps(), ElementsAre(SetBlitzPath));
}

} // namespace
} // namespace Quillbox
