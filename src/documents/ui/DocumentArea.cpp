// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/ui/DocumentArea.h"

namespace Quillbox {

DocumentArea::DocumentArea(QWidget *parent)
    : QMdiArea(parent) {
    setFrameShape(QFrame::NoFrame);
    ArrangeTimer_.setSingleShot(true);
    connect(&ArrangeTimer_, &QTimer::timeout, this, &DocumentArea::Arrange);
    connect(this, &QMdiArea::subWindowActivated, &ArrangeTimer_, qOverload<>(&QTimer::start));
}

DocumentArea::~DocumentArea() {
    for (QMdiSubWindow *window : std::as_const(Windows_))
        if (!window->parent())
            delete window;
}

void DocumentArea::Add(QMdiSubWindow *window) {
    Windows_.append(window);
    connect(window, &QMdiSubWindow::windowStateChanged, &ArrangeTimer_,
            qOverload<>(&QTimer::start));
}

void DocumentArea::Show(QMdiSubWindow *window) {
    PutInside(window);
    window->show();
}

void DocumentArea::Activate(QMdiSubWindow *window) {
    Show(window);
    setActiveSubWindow(window);
}

void DocumentArea::Remove(QMdiSubWindow *window) {
    const QSignalBlocker blocker(this);
    Windows_.removeOne(window);
    disconnect(window, nullptr, &ArrangeTimer_, nullptr);
    if (window->mdiArea() == this)
        removeSubWindow(window);
}

/// A window that was maximised when it left gives itself the main window's title on its way back.
/// Documents are known, and saved, by the titles of their windows.
void DocumentArea::PutInside(QMdiSubWindow *window) {
    if (window->mdiArea() == this)
        return;
    const QString title = window->windowTitle();
    addSubWindow(window);
    window->setWindowTitle(title);
}

/// Restored from its maximised state, a window lies among all others.
void DocumentArea::Arrange() {
    QMdiSubWindow *active = activeSubWindow();
    if (!active)
        return;
    if (active->isMaximized())
        TakeOutAllBut(active);
    else if (subWindowList().size() < Windows_.size())
        ShowAllBehind(active);
}

void DocumentArea::TakeOutAllBut(QMdiSubWindow *active) {
    for (QMdiSubWindow *window : subWindowList()) {
        if (window == active)
            continue;
        window->hide();
        removeSubWindow(window);
    }
}

void DocumentArea::ShowAllBehind(QMdiSubWindow *active) {
    const QSignalBlocker blocker(this);
    for (QMdiSubWindow *window : std::as_const(Windows_))
        Show(window);
    setActiveSubWindow(active);
}

} // namespace Quillbox
