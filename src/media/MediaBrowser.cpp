// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaBrowser.h"

#include "base/Paths.h"
#include "base/RuntimeError.h"
#include "media/FolderPaths.h"
#include "media/MediaBrowserWindow.h"
#include "state/DocumentRegistry.h"
#include "surfaces/CompanionPrograms.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/MainWindowActivation.h"
#include "surfaces/Programs.h"

namespace Quillbox {
namespace {

QString ReasonOf(PictureProblem problem) {
    switch (problem) {
    case PictureProblem::Unreadable:
        return QStringLiteral("no se puede leer el archivo");
    case PictureProblem::Damaged:
        return QStringLiteral("el archivo está dañado");
    case PictureProblem::TooLarge:
        return QStringLiteral("la imagen es demasiado grande");
    case PictureProblem::UnknownFormat:
    case PictureProblem::None:
        break;
    }
    return QStringLiteral("formato no admitido");
}

} // namespace

MediaBrowser::MediaBrowser(MediaBrowserWindow &window, DocumentRegistry &registry, Dialogs &dialogs,
                           CompanionPrograms &companions, MainWindowActivation &activation)
    : Window_(window)
    , Registry_(registry)
    , Dialogs_(dialogs)
    , Companions_(companions)
    , Activation_(activation) {}

void MediaBrowser::UpdateInsertPathButton() {
    Window_.EnableInsertPath(Registry_.CurrentIndex != 0);
}

void MediaBrowser::drvUnidad_GotFocus() { PreviousDrive_ = Window_.SelectedDrive(); }

/// Other errors are ignored: the folder list then stays where it was. The message box gives the
/// focus back while the failed drive is still selected, which must not count as the drive before.
void MediaBrowser::drvUnidad_Change() {
    const QString previous = PreviousDrive_;
    try {
        Window_.SetFolderPath(Window_.SelectedDrive());
    } catch (const RuntimeError &error) {
        if (error.Number != DeviceUnavailable().Number)
            return;
        Dialogs_.ShowMessage({QStringLiteral("El dispositivo no está disponible."),
                              QStringLiteral("Error"), MessageIcon::Critical, MessageButtons::Ok});
        PreviousDrive_ = previous;
        Window_.SelectDrive(PreviousDrive_);
    }
}

void MediaBrowser::dirCarpetas_Change() { Window_.SetFilePath(Window_.FolderPath()); }

/// The file's path is not quoted: that is what the viewer has always been given.
void MediaBrowser::filArchivos_DblClick() {
    Companions_.Start(QStringLiteral("MediaView"), QStringLiteral("mediaview.exe"),
                      WindowStyle::Minimized,
                      Window_.FilePath() + PathSeparator + Window_.SelectedFile());
}

void MediaBrowser::filArchivos_SpaceBar() {
    const QString file = Window_.SelectedFile();
    if (file.isEmpty())
        return;
    const PictureProblem problem = Window_.ShowPicture(JoinedPath(Window_.FilePath(), file));
    if (problem != PictureProblem::None)
        Dialogs_.ShowMessage(
            {QStringLiteral("No se puede mostrar %1: %2.").arg(file, ReasonOf(problem)),
             QStringLiteral("Error"), MessageIcon::Exclamation, MessageButtons::Ok});
}

/// The separator is always added: a drive's root, whose path ends in one, gets a doubled one.
void MediaBrowser::cmdInsertPath_Click() {
    EditorControl &editor = Registry_.Current().Window->Editor();
    const TextPosition caret = editor.GetSel().End;
    const QString path = Window_.FilePath() + PathSeparator + Window_.SelectedFile();
    editor.InsertText(u'"' + path + u'"', caret);
}

void MediaBrowser::cmdVolver_Click() {
    Window_.Hide();
    Activation_.Activate();
}

} // namespace Quillbox
