// SPDX-License-Identifier: GPL-3.0-or-later
#include "BuildProgram.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string SetBlitzPath =
    "programs.SetVariable blitzpath C:\\Archivos de programa\\Blitz3D\\";

class RunningTheGame : public BuildProgram {
  protected:
    void Run() { Build.mnuPrograma_Ejecutar_Click(); }
    std::vector<std::string> Starts() const { return Log.CallsOf({"programs.Start"}); }
};

TEST_F(RunningTheGame, SavesBeforeItSetsTheVariableAndCompilesThenStartsTheGame) {
    EditorOf(1).Modified = true;
    Run();
    EXPECT_THAT(Steps(),
                ElementsAre("editor.SaveFile /j/juego.prg", // the active document
                            "editor.SaveFile /j/juego.prg", // then all that have a name
                            SetBlitzPath,
                            "console.StartProcess C:\\fenix\\fxc.exe \"/j/juego.prg\" 4",
                            "main.SetLog Listo", "files.Write " + LogFile.toStdString(),
                            "files.Read " + LogFile.toStdString(),
                            "programs.Start C:\\fenix\\FXI.exe \"/j/juego.dcb\" Minimized"));
}

TEST_F(RunningTheGame, SavesEveryNamedDocumentModifiedOrNot) {
    Open({"/j/otro.prg"});
    EditorOf(1).Modified = true;
    Run();
    EXPECT_THAT(Log.CallsOf({"editor.SaveFile"}),
                ElementsAre("editor.SaveFile /j/juego.prg", "editor.SaveFile /j/otro.prg"));
}

TEST_F(RunningTheGame, SkipsOtherUntitledDocuments) {
    Documents.NewDocument();
    EditorOf(2).Modified = true;
    Walk.tabDocuments_Click(2);
    Log.Clear();
    Run();
    EXPECT_THAT(Log.CallsOf({"editor.SaveFile", "dialogs."}),
                ElementsAre("editor.SaveFile /j/juego.prg"));
}

TEST_F(RunningTheGame, GoesOnWithTheUntitledNameWhenSaveAsIsCancelled) {
    Documents.NewDocument();
    Run();
    EXPECT_EQ(Questions.Choosers.size(), 1U);
    EXPECT_THAT(CommandLines(), ElementsAre("C:\\fenix\\fxc.exe \"< sin título >\""));
    EXPECT_THAT(Starts(),
                ElementsAre("programs.Start C:\\fenix\\FXI.exe \"< sin títuldcb\" Minimized"));
}

TEST_F(RunningTheGame, ReplacesTheLastThreeCharactersOfTheNameWhateverTheyAre) {
    Open({"/j/juego.bb"});
    Run();
    EXPECT_THAT(Starts(),
                ElementsAre("programs.Start C:\\fenix\\FXI.exe \"/j/juegodcb\" Minimized"));
}

TEST_F(RunningTheGame, LooksForTheInterpreterRightBehindTheMainPath) {
    Options.MainPath = QStringLiteral("C:\\fenix"); // no separator at its end
    Run();
    EXPECT_THAT(Starts(),
                ElementsAre("programs.Start C:\\fenixFXI.exe \"/j/juego.dcb\" Minimized"));
}

TEST_F(RunningTheGame, EndsInErrorFiveWhenTheNameIsShorterThanThreeCharacters) {
    Open({"/j/ab"});
    EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 5);
    EXPECT_EQ(CommandLines().size(), 1U);
    EXPECT_THAT(Starts(), IsEmpty());
}

TEST_F(RunningTheGame, NeverStartsTheGameAfterAnErrorAndClearsTheFlag) {
    Console.Output = "Error in file /j/juego.prg at line 3: x\r\n";
    Run();
    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_THAT(Starts(), IsEmpty());
    EXPECT_FALSE(Reader.CompileErrorFound);
}

TEST_F(RunningTheGame, IsNotKeptFromStartingByAnErrorOfAnEarlierCheck) {
    Console.Output = "Error in file /j/juego.prg at line 3: x\r\n";
    Build.mnuPrograma_ComprobarErrores_Click();
    Console.Output = "Listo\r\n";
    Run();
    EXPECT_EQ(Starts().size(), 1U);
}

TEST_F(RunningTheGame, StartsTheGameEvenWhenTheCompilerCouldNotRun) {
    Console.ProcessFails = true;
    Run();
    EXPECT_EQ(Starts().size(), 1U);
}

TEST_F(RunningTheGame, EndsInErrorFiftyThreeWhenTheInterpreterIsMissing) {
    Launcher.Missing = true;
    EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 53);
    EXPECT_EQ(Main.LogText, QString("Listo"));
}

TEST_F(RunningTheGame, EndsInErrorFiveWhenTheOutputIsShorterThanTwoCharacters) {
    for (const char *output : {"", "x"}) {
        Console.Output = output;
        EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 5) << '"' << output << '"';
    }
    EXPECT_EQ(Main.LogText, QString("(nada)"));
    EXPECT_THAT(Starts(), IsEmpty());
}

TEST_F(RunningTheGame, EndsInErrorNineBeforeAnythingElseWhileTheHelpPageIsActive) {
    Registry.CurrentIndex = 0;
    EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 9);
    EXPECT_THAT(Log.Calls(), IsEmpty());
}

} // namespace
} // namespace Quillbox
