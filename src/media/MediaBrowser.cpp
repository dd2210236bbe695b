// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/MediaBrowser.h"

#include "base/Paths.h"
#include "base/RuntimeError.h"
#include "media/FolderPaths.h"
#include "media/MediaBrowserWindow.h"
#include "state/DocumentRegistry.h"
#include "surfaces/Dialogs.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"
#include "surfaces/EventLoop.h"
#include "surfaces/FileExists.h"
#include "surfaces/MainWindow.h"
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

MediaBrowser::MediaBrowser(const MediaBrowserParts &parts, MediaBrowserWindow &window)
    : Parts_(parts)
    , Window_(window) {}

void MediaBrowser::UpdateInsertPathButton() {
    Window_.EnableInsertPath(Parts_.Registry.CurrentIndex != 0);
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
        Parts_.Questions.ShowMessage({QStringLiteral("El dispositivo no está disponible."),
                                      QStringLiteral("Error"), MessageIcon::Critical,
                                      MessageButtons::Ok});
        PreviousDrive_ = previous;
        Window_.SelectDrive(PreviousDrive_);
    }
}

void MediaBrowser::dirCarpetas_Change() { Window_.SetFilePath(Window_.FolderPath()); }

/// The file's path is not quoted: that is what the viewer has always been given.
void MediaBrowser::filArchivos_DblClick() {
    const QString viewer = Parts_.AppDir + QStringLiteral("MediaView") + PathSeparator +
                           QStringLiteral("mediaview.exe");
    if (!FileExists(viewer, Parts_.Stored, Parts_.Questions))
        return;
    Parts_.Launcher.Start(viewer + u' ' + Window_.FilePath() + PathSeparator +
                              Window_.SelectedFile(),
                          WindowStyle::Minimized);
}

void MediaBrowser::filArchivos_SpaceBar() {
    const QString file = Window_.SelectedFile();
    if (file.isEmpty())
        return;
    const PictureProblem problem = Window_.ShowPicture(JoinedPath(Window_.FilePath(), file));
    if (problem != PictureProblem::None)
        Parts_.Questions.ShowMessage(
            {QStringLiteral("No se puede mostrar %1: %2.").arg(file, ReasonOf(problem)),
             QStringLiteral("Error"), MessageIcon::Exclamation, MessageButtons::Ok});
}

/// The separator is always added: a drive's root, whose path ends in one, gets a doubled one.
void MediaBrowser::cmdInsertPath_Click() {
    EditorControl &editor = Parts_.Registry.Current().Window->Editor();
    const TextPosition caret = editor.GetSel().End;
    const QString path = Window_.FilePath() + PathSeparator + Window_.SelectedFile();
    editor.InsertText(u'"' + path + u'"', caret);
}

void MediaBrowser::cmdVolver_Click() {
    Window_.Hide();
    Parts_.Main.Activate();
    Parts_.Events.ProcessPendingEvents();
}

} // namespace Quillbox
