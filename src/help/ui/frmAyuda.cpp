// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/ui/frmAyuda.h"

#include "documents/ui/DocumentArea.h"
#include "help/ui/HelpBrowser.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>

namespace Quillbox {
namespace {

constexpr int PanelIndent = 6;

} // namespace

frmAyuda::frmAyuda(DocumentArea &area, const EventBoundary &boundary)
    : Area_(area)
    , Boundary_(boundary)
    , Client_(new QWidget(this))
    , htmlAyuda(new HelpBrowser(Client_))
    , stbBarraEstado(new QStatusBar(Client_)) {
    setObjectName(QStringLiteral("frmAyuda"));
    setWindowTitle(QStringLiteral("Ayuda"));
    htmlAyuda->setObjectName(QStringLiteral("htmlAyuda"));
    BuildStatusBar();
    ConnectBrowser();
    PutOverStatusBar(*Client_, *htmlAyuda, *stbBarraEstado);
    setWidget(Client_);
    Client_->setFocusProxy(htmlAyuda);
    Client_->installEventFilter(this);
    Area_.Add(this);
}

void frmAyuda::SetEvents(const HelpViewerEvents &events) { Events_ = events; }

void frmAyuda::Show() {
    Area_.Show(this);
    showMaximized();
}

void frmAyuda::Navigate(const QString &page) { htmlAyuda->Navigate(page); }

void frmAyuda::GoBack() { htmlAyuda->backward(); }

void frmAyuda::GoForward() { htmlAyuda->forward(); }

void frmAyuda::SetFocus() {
    Area_.Activate(this);
    if (!isMaximized())
        showMaximized();
    htmlAyuda->setFocus();
}

bool frmAyuda::eventFilter(QObject *watched, QEvent *event) {
    if (watched == Client_ && (event->type() == QEvent::Resize || event->type() == QEvent::Paint))
        Panel_->setMinimumWidth(Client_->width());
    return QMdiSubWindow::eventFilter(watched, event);
}

void frmAyuda::closeEvent(QCloseEvent *event) { event->ignore(); }

void frmAyuda::BuildStatusBar() {
    stbBarraEstado->setObjectName(QStringLiteral("stbBarraEstado"));
    stbBarraEstado->setSizeGripEnabled(false);
    Panel_ = new QLabel(QStringLiteral("Ayuda de Quillbox"));
    Panel_->setIndent(PanelIndent);
    Panel_->setObjectName(QStringLiteral("stbBarraEstado_Panel1"));
    stbBarraEstado->addWidget(Panel_, 1);
}

void frmAyuda::ConnectBrowser() {
    htmlAyuda->BeforeNavigate = [this](const QString &url) {
        NavigationAnswer answer = NavigationAnswer::Cancel;
        Boundary_.Run([&] { answer = Events_.BeforeNavigate(url); });
        return answer;
    };
    const auto report = [this](auto signal, int command) {
        connect(htmlAyuda, signal, this, [this, command](bool available) {
            Boundary_.Run([&] { Events_.CommandStateChange(command, available); });
        });
    };
    report(&QTextBrowser::backwardAvailable, BackCommand);
    report(&QTextBrowser::forwardAvailable, ForwardCommand);
}

} // namespace Quillbox
