// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/MainWindow.h"

#include <QHash>
#include <QMainWindow>

#include <functional>

class QMdiSubWindow;
class QPlainTextEdit;

namespace Quillbox {

class DocumentArea;
class DocumentTabs;
class EventBoundary;
class HelpViewer;
class NavigationBar;
class frmAyuda;
class frmDoc;
struct Command;

/// What the rules do when a person acts on the main window.
struct MainWindowEvents {
    std::function<void(const Command &item)> MenuClick;
    std::function<void(const QString &tooltip)> ToolButtonClick;
    std::function<void(int tab)> TabClick;
    /// An entry of a list was clicked, or any key was let go in it.
    std::function<void(NavigationList)> ListUsed;
    /// The person made another child active by its own frame; null stands for the help page.
    std::function<void(const DocumentWindow *)> ChildActivated;
    std::function<frmDoc *(DocumentArea &)> MakeDocumentWindow;
    std::function<bool()> MayClose;
};

/// The main window: menus, tool bar tbEstandar, tabs tabDocuments, the three lists, the documents
/// and the log pane. It decides nothing; its commands come from their table.
class frmMain final : public QMainWindow, public MainWindow {
    Q_OBJECT
  public:
    /// `events` must outlive the window and may still be filled until it is shown.
    frmMain(const MainWindowEvents &events, const EventBoundary &boundary);
    ~frmMain() override;

    TabStrip &Tabs();
    NavigationLists &Lists();
    HelpViewer &Help();

    void SetCaption(const QString &caption) override;
    void EnableCommand(const QString &name, bool enabled) override;
    void CheckCommand(const QString &name, bool checked) override;
    void EnableToolButtons(const QString &tooltip, bool enabled) override;
    void SetLog(const QString &text) override;
    DocumentWindow &CreateDocumentWindow() override;
    void PopUpEditMenu() override;
    void Activate() override;
    void RequestClose() override;

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    void BuildMenus();
    void BuildToolbar();
    void AddToolButton(const Command &command);
    void BuildDocumentArea();
    void BuildLog();
    void OnChildActivated(QMdiSubWindow *child);

    QHash<QString, QAction *> MenuActions_; ///< menus and items by control name
    const MainWindowEvents &Events_;
    const EventBoundary &Boundary_;
    QToolBar *tbEstandar = nullptr;
    DocumentTabs *tabDocuments = nullptr;
    NavigationBar *NavigationBar_ = nullptr;
    DocumentArea *Area_ = nullptr;
    frmAyuda *HelpWindow_ = nullptr;
    QPlainTextEdit *txtLog = nullptr;
};

} // namespace Quillbox
