// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmMain.h"

#include "app/ui/DocumentTabs.h"
#include "app/ui/NavigationBar.h"
#include "documents/ui/DocumentArea.h"
#include "documents/ui/frmDoc.h"
#include "help/ui/frmAyuda.h"
#include "widgets/EventBoundary.h"

#include <QCloseEvent>
#include <QCursor>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScreen>

namespace Quillbox {

frmMain::frmMain(const MainWindowEvents &events, const EventBoundary &boundary)
    : Events_(events)
    , Boundary_(boundary) {
    setObjectName(QStringLiteral("frmMain"));
    BuildMenus();
    BuildToolbar();
    BuildDocumentArea();
    BuildLog();
    resize(QSize(1000, 720).boundedTo(screen()->availableSize() * 0.95));
}

/// The children go after this and must not be heard any more.
frmMain::~frmMain() { Area_->disconnect(this); }

TabStrip &frmMain::Tabs() { return *tabDocuments; }

NavigationLists &frmMain::Lists() { return *NavigationBar_; }

HelpViewer &frmMain::Help() { return *HelpWindow_; }

void frmMain::SetCaption(const QString &caption) { setWindowTitle(caption); }

void frmMain::EnableCommand(const QString &name, bool enabled) {
    MenuActions_.value(name)->setEnabled(enabled);
}

void frmMain::CheckCommand(const QString &name, bool checked) {
    QAction *action = MenuActions_.value(name);
    action->setCheckable(true);
    action->setChecked(checked);
}

void frmMain::SetLog(const QString &text) { txtLog->setPlainText(text); }

DocumentWindow &frmMain::CreateDocumentWindow() { return *Events_.MakeDocumentWindow(*Area_); }

void frmMain::PopUpEditMenu() {
    MenuActions_.value(QStringLiteral("mnuEdicion"))->menu()->popup(QCursor::pos());
}

void frmMain::Activate() {
    raise();
    activateWindow();
}

void frmMain::RequestClose() { close(); }

void frmMain::closeEvent(QCloseEvent *event) {
    event->ignore();
    Boundary_.Run([&] {
        if (Events_.MayClose())
            event->accept();
    });
}

/// Rules activate a child after they have made it the current one, so only a child that the person
/// activated by its own frame differs from the current one.
void frmMain::OnChildActivated(QMdiSubWindow *child) {
    if (!child || !isVisible())
        return;
    Boundary_.Run([&] { Events_.ChildActivated(qobject_cast<frmDoc *>(child)); });
}

} // namespace Quillbox
