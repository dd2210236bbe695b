// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Quillbox {

class CompanionPrograms;
class Dialogs;
class MainWindowActivation;
class MediaBrowserWindow;
struct DocumentRegistry;

/// What frmMediaBrowser decides.
class MediaBrowser {
  public:
    /// `window` is used from the first call on, not before.
    MediaBrowser(MediaBrowserWindow &window, DocumentRegistry &registry, Dialogs &dialogs,
                 CompanionPrograms &companions, MainWindowActivation &activation);

    /// On load, at every activation and whenever the form gets the focus: a path can be inserted
    /// while a document, not the help page, is the current one.
    void UpdateInsertPathButton();
    void drvUnidad_GotFocus();
    /// A drive without a medium is told, and the drive that was selected when the list last got the
    /// focus is selected again.
    void drvUnidad_Change();
    void dirCarpetas_Change();
    /// Opens the selected file in the viewer.
    void filArchivos_DblClick();
    /// Shows the selected file in the picture window.
    void filArchivos_SpaceBar();
    /// Writes the selected file's path in quotes at the caret, which is the end of a selection.
    void cmdInsertPath_Click();
    void cmdVolver_Click();

  private:
    MediaBrowserWindow &Window_;
    DocumentRegistry &Registry_;
    Dialogs &Dialogs_;
    CompanionPrograms &Companions_;
    MainWindowActivation &Activation_;
    QString PreviousDrive_; ///< empty until the drive list first gets the focus
};

} // namespace Quillbox
