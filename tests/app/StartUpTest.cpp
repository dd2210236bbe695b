// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartUp.h"

#include "RulesProgram.h"
#include "base/Paths.h"
#include "base/Version.h"
#include "fakes/ErrorNumber.h"

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StartingUp : public RulesProgram {
  protected:
    StartingUp() {
        Stored.Contents["/q/Keywords.txt"] = "Print\r\ncls\r\n";
        Stored.Contents["/q/QuickHelp.txt"] = "ayuda de Print\r\n";
    }

    void Run() { StartUp(On, "/q/"); }

    static std::string IndexPage() {
        return (QString("/q/Ayuda") + PathSeparator + "index.htm").toStdString();
    }
};

TEST_F(StartingUp, RunsItsStepsInOrder) {
    Run();

    std::vector<std::string> steps;
    for (const std::string &call : Log.Calls()) {
        const std::string step = call.substr(0, call.find(' '));
        if (steps.empty() || steps.back() != step)
            steps.push_back(step);
    }
    EXPECT_THAT(steps,
                ElementsAre("main.SetCaption", "main.EnableCommand", "main.EnableToolButtons",
                            "events.ProcessWindowEvents", "main.EnableCommand", "files.CanRead",
                            "files.Read", "files.CanRead", "files.Read", "profile.ReadString",
                            "languages.RegisterLanguage", "help.Show", "help.Navigate"));
}

TEST_F(StartingUp, SaysThatNoProjectIsOpen) {
    Run();

    EXPECT_EQ(Main.Caption, QString("Quillbox v" QUILLBOX_VERSION " - <Proyecto no abierto>"));
}

TEST_F(StartingUp, DisablesTheDocumentCommandsAndThenTheProjectItems) {
    Run();

    const auto calls = Log.CallsOf({"main.EnableCommand"});
    EXPECT_THAT(calls, ElementsAre("main.EnableCommand mnuEdicion false",
                                   "main.EnableCommand mnuPrograma false",
                                   "main.EnableCommand mnuArchivo_Guardar false",
                                   "main.EnableCommand mnuArchivo_GuardarComo false",
                                   "main.EnableCommand mnuArchivo_Imprimir false",
                                   "main.EnableCommand mnuArchivo_Cerrar false",
                                   "main.EnableCommand mnuVentana false",
                                   "main.EnableCommand mnuArchivo_GuardarProyecto false",
                                   "main.EnableCommand mnuArchivo_GuardarProyectoComo false",
                                   "main.EnableCommand mnuArchivo_CerrarProyecto false"));
}

TEST_F(StartingUp, ReadsTheKeywordsBeforeTheQuickHelp) {
    Run();

    EXPECT_THAT(Log.CallsOf({"files."}),
                ElementsAre("files.CanRead /q/Keywords.txt", "files.Read /q/Keywords.txt",
                            "files.CanRead /q/QuickHelp.txt", "files.Read /q/QuickHelp.txt"));
}

TEST_F(StartingUp, RegistersTheFilledLanguageUnderItsName) {
    Run();

    EXPECT_THAT(Log.CallsOf({"languages."}), ElementsAre("languages.RegisterLanguage Blitz3D"));
    EXPECT_EQ(Languages.Registered.SingleLineComment, QString("//"));
    EXPECT_EQ(Languages.Registered.Keywords, QString("\nPRINT\nCLS"));
    EXPECT_EQ(Languages.Registered.UserWords, QString());
}

TEST_F(StartingUp, FillsTheSettings) {
    Profile.Values["TabSize"] = "7";

    Run();

    EXPECT_EQ(On.Settings.TabSize, 7);
    EXPECT_EQ(On.Settings.Font, QString("Courier"));
}

/// The page at the start is the program's own one, not the one of the settings.
TEST_F(StartingUp, ShowsTheHelpIndexOfTheProgramFolder) {
    Profile.Values["HelpPath"] = "/otra/ayuda.html";

    Run();

    EXPECT_THAT(Log.CallsOf({"help."}), ElementsAre("help.Show", "help.Navigate " + IndexPage()));
}

TEST_F(StartingUp, LeavesTheHelpPageActiveWithoutDocuments) {
    Run();

    EXPECT_EQ(On.Registry.CurrentIndex, 0);
    EXPECT_EQ(On.Registry.DocumentCount, 0);
    EXPECT_EQ(Tabs.Selected, 1);
}

TEST_F(StartingUp, ShowsNoMessageOfItsOwn) {
    Run();

    EXPECT_THAT(Log.CallsOf({"dialogs."}), IsEmpty());
}

TEST_F(StartingUp, GoesOnWithoutWordFilesAfterItsWarnings) {
    Stored.Contents.clear();

    Run();

    EXPECT_THAT(Log.CallsOf({"dialogs.", "languages.", "help.Navigate"}),
                ElementsAre("dialogs.ShowMessage El archivo /q/Keywords.txt no existe.",
                            "dialogs.ShowMessage El archivo /q/QuickHelp.txt no existe.",
                            "languages.RegisterLanguage Blitz3D", "help.Navigate " + IndexPage()));
    EXPECT_EQ(Languages.Registered.Keywords, QString());
}

TEST_F(StartingUp, StopsAtANumberThatASettingCannotHold) {
    Profile.Values["FontSize"] = "300";

    EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 6);

    EXPECT_THAT(Log.CallsOf({"languages.", "help.", "dialogs.", "profile.Write"}), IsEmpty());
}

TEST_F(StartingUp, StopsAtTooManyKeywords) {
    Stored.Contents["/q/Keywords.txt"] = QByteArray("Print\r\n").repeated(601);

    EXPECT_EQ(ErrorNumberOf([this] { Run(); }), 9);

    EXPECT_THAT(Log.CallsOf({"profile.", "languages.", "help.", "dialogs."}), IsEmpty());
}

} // namespace
} // namespace Quillbox
