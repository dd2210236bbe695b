// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaBrowser.h"

#include "base/Paths.h"
#include "fakes/ErrorNumber.h"
#include "fakes/FakeMediaWindow.h"
#include "fakes/FakeProgram.h"
#include "surfaces/CompanionPrograms.h"
#include "surfaces/MainWindowActivation.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheMediaBrowser : public FakeProgram {
  protected:
    TheMediaBrowser() {
        Window.FolderChanged = [this] { Rules.dirCarpetas_Change(); };
        Window.Drive = "C";
        Window.Folder = Window.FileFolder = "/juego/media";
        Window.File = "nave.x";
    }
    std::vector<std::string> Steps() const {
        return Log.CallsOf({"media.", "dialogs.", "files.", "programs.", "main.Activate", "events.",
                            "editor.InsertText"});
    }
    void StoreViewer() { Stored.Contents["/q/MediaView/mediaview.exe"] = "MZ"; }

    FakeMediaWindow Window{Log};
    CompanionPrograms Companions{"/q/", Stored, Launcher, Questions};
    MainWindowActivation Activation{Main, Events};
    MediaBrowser Rules{Window, Registry, Questions, Companions, Activation};
};

TEST_F(TheMediaBrowser, LetsNoPathBeInsertedIntoTheHelpPage) {
    Window.InsertEnabled = true;
    Rules.UpdateInsertPathButton();
    EXPECT_FALSE(Window.InsertEnabled);
}

TEST_F(TheMediaBrowser, LetsAPathBeInsertedOnceADocumentIsTheCurrentOne) {
    Open({"/j/a.prg"});
    Rules.UpdateInsertPathButton();
    EXPECT_TRUE(Window.InsertEnabled);
}

TEST_F(TheMediaBrowser, OpensTheRootOfTheChosenDriveInBothLists) {
    Window.Drive = "/media/usb";
    Rules.drvUnidad_Change();
    EXPECT_THAT(Steps(),
                ElementsAre("media.SetFolderPath /media/usb", "media.SetFilePath /media/usb"));
}

TEST_F(TheMediaBrowser, TellsAnUnavailableDriveAndSelectsTheOneOfTheLastFocusAgain) {
    Rules.drvUnidad_GotFocus();
    Window.Drive = "A";
    Window.FolderError = DeviceUnavailable();

    Rules.drvUnidad_Change();

    EXPECT_THAT(Steps(), ElementsAre("media.SetFolderPath A",
                                     "dialogs.ShowMessage El dispositivo no está disponible.",
                                     "media.SelectDrive C"));
    EXPECT_EQ(Questions.Messages[0].Caption, "Error");
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Questions.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(Window.Drive, "C");
    EXPECT_EQ(Window.FileFolder, "/juego/media");
}

TEST_F(TheMediaBrowser, GoesBackToTheDriveOfTheLastFocusAndNotToTheOneChosenLast) {
    Rules.drvUnidad_GotFocus();
    Window.Drive = "D";
    Rules.drvUnidad_Change();
    Window.Drive = "A";
    Window.FolderError = DeviceUnavailable();
    Rules.drvUnidad_Change();
    EXPECT_EQ(Window.Drive, "C");
}

TEST_F(TheMediaBrowser, RemembersTheDriveAgainAtEveryFocus) {
    Rules.drvUnidad_GotFocus();
    Window.Drive = "D";
    Rules.drvUnidad_GotFocus();
    Window.Drive = "A";
    Window.FolderError = DeviceUnavailable();
    Rules.drvUnidad_Change();
    EXPECT_EQ(Window.Drive, "D");
}

/// Gives the drive list the focus back when it is closed, as a real message box does.
class FocusReturningDialogs : public FakeDialogs {
  public:
    using FakeDialogs::FakeDialogs;
    std::function<void()> Closed;

    MessageAnswer ShowMessage(const Message &message) override {
        const MessageAnswer answer = FakeDialogs::ShowMessage(message);
        Closed();
        return answer;
    }
};

TEST_F(TheMediaBrowser, DoesNotTakeTheFailedDriveForTheOneBeforeWhenTheMessageCloses) {
    FocusReturningDialogs boxes{Log};
    MediaBrowser rules{Window, Registry, boxes, Companions, Activation};
    boxes.Closed = [&] { rules.drvUnidad_GotFocus(); };
    rules.drvUnidad_GotFocus();
    Window.FolderError = DeviceUnavailable();
    for (int attempt = 0; attempt < 2; ++attempt) {
        Window.Drive = "A";
        rules.drvUnidad_Change();
        EXPECT_EQ(Window.Drive, "C");
    }
}

TEST_F(TheMediaBrowser, HasNoDriveToGoBackToBeforeTheFirstFocus) {
    Window.Drive = "A";
    Window.FolderError = DeviceUnavailable();

    Rules.drvUnidad_Change();

    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Window.Drive, "A");
}

TEST_F(TheMediaBrowser, IgnoresEveryOtherErrorOfADrive) {
    Rules.drvUnidad_GotFocus();
    for (const RuntimeError &error : {PathAccessError(), PermissionDenied(), InvalidArgument()}) {
        Window.Drive = "B";
        Window.FolderError = error;
        EXPECT_EQ(ErrorNumberOf([this] { Rules.drvUnidad_Change(); }), 0);
        EXPECT_EQ(Window.Drive, "B");
    }
    EXPECT_THAT(Questions.Messages, IsEmpty());
}

TEST_F(TheMediaBrowser, ShowsTheFilesOfTheOpenFolder) {
    Window.Folder = "/otra";
    Rules.dirCarpetas_Change();
    EXPECT_EQ(Window.FileFolder, "/otra");
}

TEST_F(TheMediaBrowser, WarnsOfAMissingViewerAndStartsNothing) {
    Rules.filArchivos_DblClick();

    EXPECT_THAT(
        Steps(),
        ElementsAre("files.CanRead /q/MediaView/mediaview.exe",
                    "dialogs.ShowMessage El archivo /q/MediaView/mediaview.exe no existe."));
    EXPECT_EQ(Questions.Messages[0].Icon, MessageIcon::Exclamation);
}

TEST_F(TheMediaBrowser, StartsTheViewerMinimizedWithTheUnquotedPath) {
    StoreViewer();
    Window.FileFolder = "/mis juegos";
    Window.File = "mi nave.x";

    Rules.filArchivos_DblClick();

    EXPECT_THAT(
        Steps(),
        ElementsAre("files.CanRead /q/MediaView/mediaview.exe",
                    "programs.Start /q/MediaView/mediaview.exe /mis juegos/mi nave.x Minimized"));
}

TEST_F(TheMediaBrowser, DoublesTheSeparatorOfARootForTheViewer) {
    StoreViewer();
    Window.FileFolder = "/";
    Rules.filArchivos_DblClick();
    EXPECT_EQ(Steps().back(), "programs.Start /q/MediaView/mediaview.exe //nave.x Minimized");
}

TEST_F(TheMediaBrowser, InsertsTheQuotedPathAtTheCaret) {
    Open({"/j/a.prg"});
    EditorOf(1).Selection = {{{3}, {7}}, {{3}, {7}}};

    Rules.cmdInsertPath_Click();

    EXPECT_THAT(Steps(), ElementsAre("editor.InsertText \"/juego/media/nave.x\" 3 7"));
}

TEST_F(TheMediaBrowser, InsertsAtTheEndOfASelection) {
    Open({"/j/a.prg"});
    EditorOf(1).Selection = {{{1}, {2}}, {{4}, {0}}};

    Rules.cmdInsertPath_Click();

    EXPECT_THAT(Steps(), ElementsAre("editor.InsertText \"/juego/media/nave.x\" 4 0"));
}

TEST_F(TheMediaBrowser, InsertsIntoTheCurrentDocument) {
    Open({"/j/a.prg", "/j/b.prg"});
    Registry.CurrentIndex = 1;
    EditorOf(1).Selection = {{{9}, {9}}, {{9}, {9}}};

    Rules.cmdInsertPath_Click();

    EXPECT_EQ(Steps().back(), "editor.InsertText \"/juego/media/nave.x\" 9 9");
}

TEST_F(TheMediaBrowser, DoublesTheSeparatorOfARootInTheText) {
    Open({"/j/a.prg"});
    Window.FileFolder = PathSeparator;
    Rules.cmdInsertPath_Click();
    EXPECT_EQ(Steps().back(), "editor.InsertText \"//nave.x\" 0 0");
}

TEST_F(TheMediaBrowser, InsertsTheFolderWithItsSeparatorWhenNoFileIsSelected) {
    Open({"/j/a.prg"});
    Window.File.clear();
    Rules.cmdInsertPath_Click();
    EXPECT_EQ(Steps().back(), "editor.InsertText \"/juego/media/\" 0 0");
}

TEST_F(TheMediaBrowser, StaysOpenWhenItInserts) {
    Open({"/j/a.prg"});
    Rules.cmdInsertPath_Click();
    EXPECT_THAT(Log.CallsOf({"media.Hide", "main.Activate"}), IsEmpty());
}

TEST_F(TheMediaBrowser, HidesAndGivesTheMainWindowTheKeyboard) {
    Rules.cmdVolver_Click();
    EXPECT_THAT(Steps(), ElementsAre("media.Hide", "main.Activate", "events.ProcessPendingEvents"));
}

TEST_F(TheMediaBrowser, ShowsTheSelectedPicture) {
    Window.File = "nave.png";
    Rules.filArchivos_SpaceBar();
    EXPECT_THAT(Steps(), ElementsAre("media.ShowPicture /juego/media/nave.png"));
}

TEST_F(TheMediaBrowser, ShowsAPictureInARootByItsPlainPath) {
    Window.FileFolder = "/";
    Rules.filArchivos_SpaceBar();
    EXPECT_THAT(Steps(), ElementsAre("media.ShowPicture /nave.x"));
}

TEST_F(TheMediaBrowser, ShowsNothingWithoutASelectedFile) {
    Window.File.clear();
    Rules.filArchivos_SpaceBar();
    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(TheMediaBrowser, SaysWhyAPictureCannotBeShown) {
    const std::pair<PictureProblem, const char *> reasons[] = {
        {PictureProblem::Unreadable, "No se puede mostrar nave.x: no se puede leer el archivo."},
        {PictureProblem::UnknownFormat, "No se puede mostrar nave.x: formato no admitido."},
        {PictureProblem::Damaged, "No se puede mostrar nave.x: el archivo está dañado."},
        {PictureProblem::TooLarge, "No se puede mostrar nave.x: la imagen es demasiado grande."},
    };
    for (const auto &[problem, text] : reasons) {
        Window.Problem = problem;
        Rules.filArchivos_SpaceBar();
        EXPECT_EQ(Questions.Messages.back().Text, text);
        EXPECT_EQ(Questions.Messages.back().Icon, MessageIcon::Exclamation);
    }
}

} // namespace
} // namespace Quillbox
