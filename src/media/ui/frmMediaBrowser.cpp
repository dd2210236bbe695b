// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ui/frmMediaBrowser.h"

#include "media/FolderPaths.h"
#include "media/ui/DriveList.h"
#include "media/ui/FileList.h"
#include "media/ui/FolderList.h"
#include "media/ui/PictureFile.h"
#include "media/ui/frmMuestraImagenes.h"
#include "surfaces/Folders.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

namespace Quillbox {
namespace {

constexpr QSize InitialSize(640, 460);

/// A list below a label whose mnemonic leads to it.
void AddLabelled(QVBoxLayout &column, const QString &caption, QWidget &list, int stretch) {
    auto *label = new QLabel(caption);
    label->setBuddy(&list);
    column.addWidget(label);
    column.addWidget(&list, stretch);
}

QVBoxLayout &AddColumn(QSplitter &splitter) {
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    splitter.addWidget(column);
    return *layout;
}

} // namespace

frmMediaBrowser::frmMediaBrowser(const RulesMaker &rulesOver, MainWindow &mainWindow,
                                 Folders &folders, const EventBoundary &boundary, QWidget *owner)
    : QDialog(owner)
    , Rules_(rulesOver(*this))
    , MainWindow_(mainWindow)
    , Folders_(folders)
    , Boundary_(boundary) {
    setObjectName(QStringLiteral("frmMediaBrowser"));
    setWindowTitle(QStringLiteral("Explorador Media"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto *layout = new QVBoxLayout(this);
    auto *splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    layout->addWidget(splitter, 1);
    BuildLists(*splitter);
    BuildButtons(*layout);
    AddShortcuts();
    ConnectLists();
    resize(InitialSize);
    dirCarpetas->SetPath(Folders_.CurrentFolder());
    dirCarpetas->setFocus();
    Run(&MediaBrowser::UpdateInsertPathButton);
}

void frmMediaBrowser::BuildLists(QSplitter &splitter) {
    drvUnidad = new DriveList(Folders_, this);
    dirCarpetas = new FolderList(Folders_, this);
    filArchivos = new FileList(Folders_, this);
    QVBoxLayout &left = AddColumn(splitter);
    AddLabelled(left, QStringLiteral("&Unidad:"), *drvUnidad, 0);
    AddLabelled(left, QStringLiteral("&Carpetas:"), *dirCarpetas, 1);
    AddLabelled(AddColumn(splitter), QStringLiteral("&Archivos:"), *filArchivos, 1);
    splitter.setSizes({InitialSize.width() * 2 / 5, InitialSize.width() * 3 / 5});
    splitter.setStretchFactor(1, 1);
}

void frmMediaBrowser::BuildButtons(QVBoxLayout &layout) {
    auto *hint = new QLabel(
        QStringLiteral("Doble clic o Intro abre el archivo; Espacio muestra la imagen."));
    hint->setWordWrap(true);
    cmdInsertPath = NewButton("cmdInsertPath", "Insertar &Ruta",
                              "Inserta la ruta del archivo seleccionado en la posición del cursor");
    auto *back = NewButton("cmdVolver", "&Volver", "Vuelve a la ventana principal");
    auto *row = new QHBoxLayout;
    row->addWidget(hint, 1);
    row->addWidget(cmdInsertPath);
    row->addWidget(back);
    layout.addLayout(row);
    connect(cmdInsertPath, &QPushButton::clicked, this,
            [this] { Run(&MediaBrowser::cmdInsertPath_Click); });
    connect(back, &QPushButton::clicked, this, &frmMediaBrowser::reject);
}

void frmMediaBrowser::AddShortcuts() {
    connect(new QShortcut(Qt::Key_Backspace, this), &QShortcut::activated, dirCarpetas,
            &FolderList::GoUp);
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, dirCarpetas,
            &FolderList::Refresh);
}

/// Both lists are in agreement after every change of the folder: the drive shown is the one that
/// the folder lies on.
void frmMediaBrowser::ConnectLists() {
    connect(drvUnidad, &DriveList::GotFocus, this,
            [this] { Run(&MediaBrowser::drvUnidad_GotFocus); });
    connect(drvUnidad, &DriveList::Chosen, this, [this] { Run(&MediaBrowser::drvUnidad_Change); });
    connect(dirCarpetas, &FolderList::Changed, this, [this] {
        Run(&MediaBrowser::dirCarpetas_Change);
        drvUnidad->SelectHolding(dirCarpetas->Path());
    });
    connect(filArchivos, &FileList::Opened, this,
            [this] { Run(&MediaBrowser::filArchivos_DblClick); });
    connect(filArchivos, &FileList::PreviewWanted, this,
            [this] { Run(&MediaBrowser::filArchivos_SpaceBar); });
}

void frmMediaBrowser::ComeForward() {
    show();
    raise();
    activateWindow();
}

QString frmMediaBrowser::SelectedDrive() const { return drvUnidad->Selected(); }

void frmMediaBrowser::SelectDrive(const QString &drive) {
    if (drive.isEmpty())
        return;
    drvUnidad->SelectHolding(dirCarpetas->Path());
    if (drvUnidad->Selected() != drive)
        dirCarpetas->SetPath(drive);
}

QString frmMediaBrowser::FolderPath() const { return dirCarpetas->Path(); }

void frmMediaBrowser::SetFolderPath(const QString &path) {
    if (drvUnidad->IsDrive(path))
        Folders_.RequireDrive(path);
    dirCarpetas->SetPath(path);
}

QString frmMediaBrowser::FilePath() const { return filArchivos->Path(); }

void frmMediaBrowser::SetFilePath(const QString &path) { filArchivos->SetPath(path); }

QString frmMediaBrowser::SelectedFile() const { return filArchivos->SelectedFile(); }

void frmMediaBrowser::EnableInsertPath(bool enabled) { cmdInsertPath->setEnabled(enabled); }

PictureProblem frmMediaBrowser::ShowPicture(const QString &path) {
    const PictureFile picture = ReadPictureFile(path);
    if (picture.Problem == PictureProblem::None) {
        auto *preview = new frmMuestraImagenes({picture.Image, QFileInfo(path).fileName()},
                                               MainWindow_, Boundary_, this);
        connect(preview, &frmMuestraImagenes::LeftForOwner, this, &QWidget::activateWindow);
        preview->show();
        preview->activateWindow();
    }
    return picture.Problem;
}

void frmMediaBrowser::Hide() { hide(); }

void frmMediaBrowser::reject() { Run(&MediaBrowser::cmdVolver_Click); }

bool frmMediaBrowser::event(QEvent *event) {
    const bool handled = QDialog::event(event);
    if (cmdInsertPath &&
        (event->type() == QEvent::WindowActivate || event->type() == QEvent::FocusIn))
        Run(&MediaBrowser::UpdateInsertPathButton);
    return handled;
}

void frmMediaBrowser::Run(void (MediaBrowser::*step)()) {
    Boundary_.Run([this, step] { (Rules_.*step)(); });
}

} // namespace Quillbox
