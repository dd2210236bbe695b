// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeFolders.h"
#include "fakes/UiProgram.h"
#include "media/ui/DriveList.h"
#include "media/ui/FileList.h"
#include "media/ui/FolderList.h"
#include "media/ui/frmMediaBrowser.h"

#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QStringList TextsOf(const QAbstractItemView &list) {
    QStringList texts;
    for (int row = 0; row < list.model()->rowCount(); ++row)
        texts.append(list.model()->index(row, 0).data().toString());
    return texts;
}

QString CurrentOf(const QAbstractItemView &list) { return list.currentIndex().data().toString(); }

FakeFolders DiskOfAGame() {
    FakeFolders disk;
    disk.AllDrives = {{"/", "Sistema"}, {"/media/a", ""}, {"/media/usb", "USB"}};
    disk.EmptyDrives = {"/media/a"};
    disk.FolderNamesIn["/"] = {"media", "juego"};
    disk.FolderNamesIn["/juego"] = {"naves", "mapas"};
    disk.FileNamesIn["/juego"] = {"nave10.x", "a.PNG", "b.txt", "nave2.x", "c.x3m"};
    disk.FileNamesIn["/juego/mapas"] = {"uno.tga"};
    disk.Unreadable["/juego/naves"] = FolderState::Denied;
    disk.Current = "/juego";
    return disk;
}

/// The browser over drives and folders of the test.
class TheMediaBrowserWindow : public UiProgram {
  protected:
    TheMediaBrowserWindow() {
        Start();
        Questions.Messages.clear(); // those about the word files
        Activation.emplace(Main(), Events);
        Browser = new frmMediaBrowser(
            [this](MediaBrowserWindow &window) {
                return MediaBrowser(window, Registry(), Questions, Companions, *Activation);
            },
            Main(), Disk, Boundary, &Main());
        ComeForward();
    }

    void ComeForward() {
        Browser->ComeForward();
        QApplication::setActiveWindow(Browser);
        Settle();
    }
    template <typename Widget>
    Widget &In(const char *name) {
        return *Browser->findChild<Widget *>(QLatin1String(name));
    }
    DriveList &DrivesShown() { return In<DriveList>("drvUnidad"); }
    FolderList &FoldersShown() { return In<FolderList>("dirCarpetas"); }
    FileList &FilesShown() { return In<FileList>("filArchivos"); }
    void Press(QWidget &widget, Qt::Key key) {
        widget.setFocus();
        QTest::keyClick(&widget, key);
        Settle();
    }
    void DoubleClick(QListView &list, const QString &text) {
        const QPoint place =
            list.visualRect(list.model()->index(static_cast<int>(TextsOf(list).indexOf(text)), 0))
                .center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        Settle();
    }
    void SelectIn(QListView &list, const QString &text) {
        list.setCurrentIndex(list.model()->index(static_cast<int>(TextsOf(list).indexOf(text)), 0));
    }
    void Click(const char *button) {
        In<QPushButton>(button).click();
        Settle();
    }
    /// Chooses a drive in the closed list, which has the keyboard.
    void ChooseDriveBelow() {
        DrivesShown().setFocus();
        Settle();
        QTest::keyClick(&DrivesShown(), Qt::Key_Down);
        Settle();
    }

    FakeFolders Disk = DiskOfAGame();
    EventBoundary Boundary{Questions};
    CompanionPrograms Companions{AppDir(), Stored, Launcher, Questions};
    std::optional<MainWindowActivation> Activation;
    frmMediaBrowser *Browser = nullptr; ///< the main window owns it
};

TEST_F(TheMediaBrowserWindow, CarriesItsTitleTooltipsAndCaptions) {
    EXPECT_EQ(Browser->windowTitle(), "Explorador Media");
    EXPECT_EQ(DrivesShown().toolTip(), "Unidades");
    EXPECT_EQ(FoldersShown().toolTip(), "Lista de carpetas");
    EXPECT_EQ(FilesShown().toolTip(), "Lista de archivos");
    EXPECT_EQ(In<QPushButton>("cmdInsertPath").text(), "Insertar &Ruta");
    EXPECT_EQ(In<QPushButton>("cmdInsertPath").toolTip(),
              "Inserta la ruta del archivo seleccionado en la posición del cursor");
    EXPECT_EQ(In<QPushButton>("cmdVolver").text(), "&Volver");
    EXPECT_EQ(In<QPushButton>("cmdVolver").toolTip(), "Vuelve a la ventana principal");
}

TEST_F(TheMediaBrowserWindow, BeginsInTheCurrentFolderOfTheProcess) {
    EXPECT_EQ(DrivesShown().currentText(), "/ [Sistema]");
    EXPECT_THAT(TextsOf(FoldersShown()), ElementsAre("/", "juego", "mapas", "naves"));
    EXPECT_EQ(CurrentOf(FoldersShown()), "juego");
    EXPECT_TRUE(FoldersShown().hasFocus());
}

TEST_F(TheMediaBrowserWindow, ListsTheMediaFilesOfTheFolderInOrder) {
    EXPECT_THAT(TextsOf(FilesShown()), ElementsAre("a.PNG", "c.x3m", "nave2.x", "nave10.x"));
    EXPECT_EQ(FilesShown().Notice(), "");
}

TEST_F(TheMediaBrowserWindow, OpensAFolderByDoubleClickAndReturn) {
    DoubleClick(FoldersShown(), "mapas");
    EXPECT_THAT(TextsOf(FoldersShown()), ElementsAre("/", "juego", "mapas"));
    EXPECT_THAT(TextsOf(FilesShown()), ElementsAre("uno.tga"));

    SelectIn(FoldersShown(), "/");
    Press(FoldersShown(), Qt::Key_Return);
    EXPECT_THAT(TextsOf(FoldersShown()), ElementsAre("/", "juego", "media"));
    EXPECT_EQ(Browser->FilePath(), "/");
}

TEST_F(TheMediaBrowserWindow, OnlySelectsAFolderByOneClick) {
    SelectIn(FoldersShown(), "mapas");
    Settle();
    EXPECT_EQ(Browser->FilePath(), "/juego");
}

TEST_F(TheMediaBrowserWindow, GoesUpByBackspaceWithTheFolderLeftSelected) {
    Press(FilesShown(), Qt::Key_Backspace);
    EXPECT_EQ(Browser->FolderPath(), "/");
    EXPECT_EQ(CurrentOf(FoldersShown()), "juego");
    Press(FoldersShown(), Qt::Key_Backspace);
    EXPECT_EQ(Browser->FolderPath(), "/");
}

TEST_F(TheMediaBrowserWindow, SaysThatAFolderCannotBeRead) {
    DoubleClick(FoldersShown(), "naves");
    EXPECT_EQ(FilesShown().Notice(), "No tienes permiso para leer esta carpeta.");
    EXPECT_THAT(Questions.Messages, IsEmpty());
    Press(FoldersShown(), Qt::Key_Backspace);
    EXPECT_EQ(TextsOf(FilesShown()).size(), 4);
}

TEST_F(TheMediaBrowserWindow, SaysThatAFolderHasNoMediaFiles) {
    DoubleClick(FoldersShown(), "/");
    EXPECT_EQ(FilesShown().Notice(), "No hay archivos de medios en esta carpeta.");
}

TEST_F(TheMediaBrowserWindow, FindsNewFilesByF5AndKeepsTheSelection) {
    SelectIn(FilesShown(), "nave2.x");
    Disk.FileNamesIn["/juego"].append("b.bmp");
    Disk.FolderNamesIn["/juego"].append("sonidos");

    Press(FilesShown(), Qt::Key_F5);

    EXPECT_THAT(TextsOf(FilesShown()),
                ElementsAre("a.PNG", "b.bmp", "c.x3m", "nave2.x", "nave10.x"));
    EXPECT_EQ(Browser->SelectedFile(), "nave2.x");
    EXPECT_EQ(TextsOf(FoldersShown()).back(), "sonidos");
}

TEST_F(TheMediaBrowserWindow, SaysThatTheOpenFolderIsGone) {
    Disk.FileNamesIn["/juego"].clear();
    Disk.Unreadable["/juego"] = FolderState::Missing;
    Press(FoldersShown(), Qt::Key_F5);
    EXPECT_EQ(FilesShown().Notice(), "Esta carpeta no está disponible.");
}

TEST_F(TheMediaBrowserWindow, OpensTheRootOfAChosenDrive) {
    Disk.EmptyDrives.clear();
    ChooseDriveBelow();
    EXPECT_EQ(Browser->FolderPath(), "/media/a");
    EXPECT_EQ(Browser->FilePath(), "/media/a");
    EXPECT_EQ(Browser->SelectedDrive(), "/media/a");
}

TEST_F(TheMediaBrowserWindow, StaysInItsFolderWhenTheSameDriveIsChosenAgain) {
    DrivesShown().setFocus();
    DrivesShown().showPopup();
    QTest::keyClick(DrivesShown().view(), Qt::Key_Return);
    Settle();
    EXPECT_FALSE(DrivesShown().view()->isVisible());
    EXPECT_EQ(Browser->FolderPath(), "/juego");
}

TEST_F(TheMediaBrowserWindow, TellsAnEmptyDriveAndSelectsTheDriveBefore) {
    ChooseDriveBelow();
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text, "El dispositivo no está disponible.");
    EXPECT_EQ(Browser->SelectedDrive(), "/");
    EXPECT_EQ(Browser->FolderPath(), "/juego");
}

TEST_F(TheMediaBrowserWindow, TellsAnEmptyDriveThatWasChosenInTheDroppedList) {
    DrivesShown().setFocus();
    Settle();
    DrivesShown().showPopup();
    QTest::keyClick(DrivesShown().view(), Qt::Key_Down);
    QTest::keyClick(DrivesShown().view(), Qt::Key_Return);
    Settle();
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Browser->SelectedDrive(), "/");
}

TEST_F(TheMediaBrowserWindow, GoesBackWithBothListsToTheDriveOfTheLastFocus) {
    Disk.EmptyDrives.clear();
    ChooseDriveBelow(); // the list keeps the focus
    Disk.EmptyDrives = {"/media/usb"};
    QTest::keyClick(&DrivesShown(), Qt::Key_Down);
    Settle();

    EXPECT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Browser->SelectedDrive(), "/");
    EXPECT_EQ(Browser->FolderPath(), "/");
}

TEST_F(TheMediaBrowserWindow, LooksForDrivesEachTimeItsListDropsDown) {
    Disk.AllDrives.push_back({"/media/dvd", "Fotos"});
    DrivesShown().showPopup();
    EXPECT_EQ(DrivesShown().count(), 4);
    EXPECT_EQ(DrivesShown().itemText(3), "/media/dvd [Fotos]");
    EXPECT_EQ(Browser->SelectedDrive(), "/");
    DrivesShown().hidePopup();
}

TEST_F(TheMediaBrowserWindow, ShowsTheDriveOfTheFolderThatIsOpened) {
    Disk.FolderNamesIn["/media"] = {"usb"};
    DoubleClick(FoldersShown(), "/");
    DoubleClick(FoldersShown(), "media");
    DoubleClick(FoldersShown(), "usb");
    EXPECT_EQ(DrivesShown().currentText(), "/media/usb [USB]");
}

TEST_F(TheMediaBrowserWindow, InsertsTheQuotedPathIntoTheDocumentAndStays) {
    Write("a.prg", "uno\r\ndos\r\n");
    Open("a.prg");
    ComeForward();
    SelectIn(FilesShown(), "nave2.x");

    Click("cmdInsertPath");

    EXPECT_EQ(Registry().Current().Window->Editor().LineText({0}), "\"/juego/nave2.x\"uno");
    EXPECT_TRUE(Browser->isVisible());
}

TEST_F(TheMediaBrowserWindow, InsertsNothingIntoTheHelpPage) {
    EXPECT_FALSE(In<QPushButton>("cmdInsertPath").isEnabled());
    Trigger("mnuArchivo_Nuevo");
    ComeForward();
    EXPECT_TRUE(In<QPushButton>("cmdInsertPath").isEnabled());
    Trigger("mnuVentana_Ayuda");
    QApplication::setActiveWindow(&Main());
    ComeForward();
    EXPECT_FALSE(In<QPushButton>("cmdInsertPath").isEnabled());
}

TEST_F(TheMediaBrowserWindow, StartsTheViewerByDoubleClickAndReturn) {
    QDir(Folder.path()).mkdir("MediaView");
    Write("MediaView/mediaview.exe", "MZ");
    const std::string start = "programs.Start " + AppDir().toStdString() +
                              "MediaView/mediaview.exe /juego/nave2.x Minimized";
    DoubleClick(FilesShown(), "nave2.x");
    Press(FilesShown(), Qt::Key_Return);
    EXPECT_THAT(Log.CallsOf({"programs.Start"}), ElementsAre(start, start));
}

TEST_F(TheMediaBrowserWindow, WarnsOfAMissingViewer) {
    DoubleClick(FilesShown(), "nave2.x");
    ASSERT_EQ(Questions.Messages.size(), 1U);
    EXPECT_EQ(Questions.Messages[0].Text,
              "El archivo " + AppDir() + "MediaView/mediaview.exe no existe.");
    EXPECT_THAT(Log.CallsOf({"programs."}), IsEmpty());
}

TEST_F(TheMediaBrowserWindow, FindsAFileByTheLettersTyped) {
    FilesShown().setFocus();
    QTest::keyClicks(&FilesShown(), "NAVE1");
    EXPECT_EQ(Browser->SelectedFile(), "nave10.x");
}

TEST_F(TheMediaBrowserWindow, SelectsTheFileThatTheKeyboardComesTo) {
    EXPECT_EQ(Browser->SelectedFile(), "");
    QTest::keyClick(&FoldersShown(), Qt::Key_Tab);
    EXPECT_EQ(Browser->SelectedFile(), "a.PNG");
}

TEST_F(TheMediaBrowserWindow, IsHiddenInEveryWayWithTheKeyboardBackInTheMainWindow) {
    const std::function<void()> ways[] = {[this] { Click("cmdVolver"); },
                                          [this] { Press(FilesShown(), Qt::Key_Escape); },
                                          [this] { Browser->close(); }};
    for (const auto &leave : ways) {
        ComeForward();
        ASSERT_TRUE(Browser->isVisible());
        leave();
        Settle();
        EXPECT_FALSE(Browser->isVisible());
        EXPECT_TRUE(Main().isActiveWindow());
    }
}

TEST_F(TheMediaBrowserWindow, HasItsFolderAndSelectionWhenItComesBack) {
    SelectIn(FilesShown(), "c.x3m");
    Click("cmdVolver");
    ComeForward();
    EXPECT_EQ(Browser->FolderPath(), "/juego");
    EXPECT_EQ(Browser->SelectedFile(), "c.x3m");
}

TEST_F(TheMediaBrowserWindow, LeadsTheTabKeyThroughListsAndButtons) {
    QStringList names;
    for (QWidget *widget = Browser->nextInFocusChain(); widget != Browser;
         widget = widget->nextInFocusChain())
        if ((widget->focusPolicy() & Qt::TabFocus) &&
            QStringList{"drvUnidad", "dirCarpetas", "filArchivos", "cmdInsertPath", "cmdVolver"}
                .contains(widget->objectName()))
            names.append(widget->objectName());
    EXPECT_THAT(names, ElementsAre("drvUnidad", "dirCarpetas", "filArchivos", "cmdInsertPath",
                                   "cmdVolver"));
}

class MediaBrowserCommand : public UiProgram {
  protected:
    MediaBrowserCommand() { Start(); }
    frmMediaBrowser *Show() {
        Trigger("mnuHerramientas_ExploradorMedia");
        return Find<frmMediaBrowser>("frmMediaBrowser");
    }
};

TEST_F(MediaBrowserCommand, ShowsOneBrowserOverTheMainWindow) {
    frmMediaBrowser *browser = Show();
    ASSERT_NE(browser, nullptr);
    EXPECT_FALSE(browser->isModal());
    EXPECT_EQ(browser->parentWidget(), &Main());
    browser->close();
    EXPECT_EQ(Show(), browser);
    EXPECT_TRUE(browser->isVisible());
    EXPECT_EQ(Main().findChildren<frmMediaBrowser *>().size(), 1);
}

TEST_F(MediaBrowserCommand, IsInTheToolbarToo) {
    Find<QAction>("tbEstandar_Explorador Media")->trigger();
    Settle();
    EXPECT_TRUE(Find<frmMediaBrowser>("frmMediaBrowser")->isVisible());
}

} // namespace
} // namespace Quillbox
