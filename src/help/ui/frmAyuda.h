// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surfaces/HelpViewer.h"

#include <QMdiSubWindow>

class QLabel;
class QStatusBar;

namespace Quillbox {

class DocumentArea;
class EventBoundary;
class HelpBrowser;

/// The help page's window: the browser htmlAyuda and a status bar. It lives as long as the program;
/// its close box does nothing.
class frmAyuda final : public QMdiSubWindow, public HelpViewer {
    Q_OBJECT
  public:
    frmAyuda(DocumentArea &area, const EventBoundary &boundary);

    void SetEvents(const HelpViewerEvents &events) override;
    void Show() override;
    void Navigate(const QString &page) override;
    void GoBack() override;
    void GoForward() override;
    void SetFocus() override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    void BuildStatusBar();
    void ConnectBrowser();

    DocumentArea &Area_;
    const EventBoundary &Boundary_;
    HelpViewerEvents Events_;
    QWidget *Client_;
    HelpBrowser *htmlAyuda;
    QStatusBar *stbBarraEstado;
    QLabel *Panel_ = nullptr;
};

} // namespace Quillbox
