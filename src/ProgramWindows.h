// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandWindows.h"
#include "editor/ui/LanguageCatalogue.h"
#include "search/ui/FindState.h"

#include <QPointer>

class QDialog;

namespace Quillbox {

class DocumentArea;
class EventBoundary;
class frmDoc;
class frmMain;
class frmMediaBrowser;
class frmProjectInfo;
class frmToDoList;
struct Outside;
struct Rules;

/// Makes every window but the main one and gives it its rules.
class ProgramWindows final : public CommandWindows {
  public:
    /// All are used from the first window on, not before.
    ProgramWindows(frmMain &mainWindow, const EventBoundary &boundary, const Outside &outside,
                   Rules &rules);

    LanguageCatalogue &Languages() { return Languages_; }
    frmDoc *NewDocumentWindow(DocumentArea &area);

    void ShowAbout() override;
    void ShowNewProject() override;
    void ShowSettings() override;
    void ShowProjectInfo() override;
    void ShowToDoList() override;
    void ShowMediaBrowser() override;

  private:
    template <typename Window, typename WindowRules>
    void ShowModeless(QPointer<Window> &window, WindowRules &rules);

    frmMain &MainWindow_;
    const EventBoundary &Boundary_;
    const Outside &Outside_;
    Rules &Rules_;
    LanguageCatalogue Languages_;
    FindState Find_;
    QPointer<frmProjectInfo> ProjectInfo_;
    QPointer<frmToDoList> ToDoList_;
    QPointer<frmMediaBrowser> MediaBrowser_;
    QPointer<QDialog> Settings_; ///< while it is open
};

} // namespace Quillbox
