// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/MainWindow.h"

#include <QMdiSubWindow>

class QTextBrowser;

namespace Quillbox {

class DocumentArea;

/// The help page's window: the browser htmlAyuda and a status bar. It lives as long as the program;
/// its close box does nothing.
class frmAyuda final : public QMdiSubWindow, public HelpViewer {
    Q_OBJECT
  public:
    explicit frmAyuda(DocumentArea &area);

    void Show() override;
    void Navigate(const QString &page) override;
    void GoBack() override;
    void GoForward() override;
    void SetFocus() override;

  signals:
    void BackAvailable(bool available);
    void ForwardAvailable(bool available);

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    DocumentArea &Area_;
    QTextBrowser *htmlAyuda;
};

} // namespace Quillbox
