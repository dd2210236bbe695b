// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmAyuda.h"

#include "app/frmMainArea.h"
#include "platform/Paths.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QStatusBar>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace Quillbox {
namespace {

QString MissingPageText(const QString &page) {
    return QStringLiteral("<h2>No se encuentra la página</h2><p>La página de ayuda <b>%1</b> no "
                          "existe o no se puede leer.</p>")
        .arg(page.toHtmlEscaped());
}

/// Shows a page that is not there as one that says so: it is part of the history like any other.
class HelpBrowser final : public QTextBrowser {
  public:
    QVariant loadResource(int type, const QUrl &url) override {
        if (type == QTextDocument::HtmlResource && !QFileInfo(url.toLocalFile()).isFile())
            return MissingPageText(url.toLocalFile());
        return QTextBrowser::loadResource(type, url);
    }
};

} // namespace

frmAyuda::frmAyuda(DocumentArea &area)
    : Area_(area)
    , htmlAyuda(new HelpBrowser) {
    setObjectName(QStringLiteral("frmAyuda"));
    setWindowTitle(QStringLiteral("Ayuda"));
    htmlAyuda->setObjectName(QStringLiteral("htmlAyuda"));
    htmlAyuda->setFrameShape(QFrame::NoFrame);

    auto *statusBar = new QStatusBar;
    statusBar->setObjectName(QStringLiteral("stbBarraEstado"));
    statusBar->setSizeGripEnabled(false);
    auto *panel = new QLabel(QStringLiteral("Ayuda de Quillbox"));
    panel->setIndent(6);
    panel->setObjectName(QStringLiteral("stbBarraEstado_Panel1"));
    statusBar->addWidget(panel, 1);

    auto *client = new QWidget;
    auto *layout = new QVBoxLayout(client);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(htmlAyuda);
    layout->addWidget(statusBar);
    setWidget(client);
    client->setFocusProxy(htmlAyuda);
    Area_.Add(this);
    connect(htmlAyuda, &QTextBrowser::backwardAvailable, this, &frmAyuda::BackAvailable);
    connect(htmlAyuda, &QTextBrowser::forwardAvailable, this, &frmAyuda::ForwardAvailable);
}

void frmAyuda::Show() {
    Area_.Show(this);
    showMaximized();
}

void frmAyuda::Navigate(const QString &page) {
    htmlAyuda->setSource(QUrl::fromLocalFile(SystemPath(page)), QTextDocument::HtmlResource);
}

void frmAyuda::GoBack() { htmlAyuda->backward(); }

void frmAyuda::GoForward() { htmlAyuda->forward(); }

void frmAyuda::SetFocus() {
    Area_.Activate(this);
    if (!isMaximized())
        showMaximized();
    htmlAyuda->setFocus();
}

void frmAyuda::closeEvent(QCloseEvent *event) { event->ignore(); }

} // namespace Quillbox
