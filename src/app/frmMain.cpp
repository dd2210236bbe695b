// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmMain.h"

#include "app/frmMainLists.h"
#include "app/frmMainTabs.h"
#include "editor/frmDoc.h"
#include "platform/qt/EventBoundary.h"
#include "tools/frmAyuda.h"

#include <QCloseEvent>
#include <QCursor>
#include <QMdiArea>
#include <QMenu>
#include <QPlainTextEdit>

namespace Quillbox {

frmMain::frmMain(const CommandTable &commands, const MainWindowEvents &events,
                 const EventBoundary &boundary)
    : Commands_(commands)
    , Events_(events)
    , Boundary_(boundary) {
    setObjectName(QStringLiteral("frmMain"));
    BuildMenus();
    BuildToolbar();
    BuildDocumentArea();
    BuildLog();
    resize(1000, 720);
}

TabStrip &frmMain::Tabs() { return *tabDocuments; }

NavigationLists &frmMain::Lists() { return *NavigationBar_; }

HelpViewer &frmMain::Help() { return *HelpWindow_; }

void frmMain::SetCaption(const QString &caption) { setWindowTitle(caption); }

/// A command that does not exist yet stays disabled, whatever state it would have.
void frmMain::EnableCommand(const QString &name, bool enabled) {
    if (auto *menu = findChild<QMenu *>(name))
        menu->menuAction()->setEnabled(enabled);
    else if (auto *action = findChild<QAction *>(name))
        action->setEnabled(enabled && Commands_.contains(name));
}

void frmMain::CheckCommand(const QString &name, bool checked) {
    auto *action = findChild<QAction *>(name);
    action->setCheckable(true);
    action->setChecked(checked);
}

void frmMain::SetLog(const QString &text) { txtLog->setPlainText(text); }

DocumentWindow &frmMain::CreateDocumentWindow() {
    frmDoc *document = Events_.MakeDocumentWindow();
    Area_->addSubWindow(document);
    return *document;
}

void frmMain::PopUpEditMenu() {
    findChild<QMenu *>(QStringLiteral("mnuEdicion"))->popup(QCursor::pos());
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
