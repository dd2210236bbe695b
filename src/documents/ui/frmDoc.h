// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorView.h"
#include "surfaces/DocumentWindow.h"

#include <QMdiSubWindow>

#include <array>
#include <functional>

class QLabel;
class QStatusBar;

namespace Quillbox {

class Dialogs;
class DocumentArea;
class EventBoundary;
class LanguageCatalogue;
class ScintillaEditor;
struct FindState;

/// What every document window needs.
struct DocumentWindowParts {
    DocumentArea &Area;
    EditorViewParts View;
    const LanguageCatalogue &Languages;
    FindState &Find;
    Dialogs &Messages;
    const EventBoundary &Boundary;
    std::function<void()> CloseRequested; ///< the person wants the active document closed
};

/// The child window of one document: the editor txtCode and the status bar stbBarraEstado.
class frmDoc final : public QMdiSubWindow, public DocumentWindow {
    Q_OBJECT
  public:
    explicit frmDoc(const DocumentWindowParts &parts);

    EditorControl &Editor() override;
    QString Caption() const override;
    void SetCaption(const QString &caption) override;
    void Show() override;
    void Activate() override;
    void Maximize() override;
    void Close() override;
    void SetPanelText(StatusPanel panel, const QString &text) override;
    void EnablePanel(StatusPanel panel, bool enabled) override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    static constexpr std::size_t PanelCount = 8;

    void BuildStatusBar();
    void ConnectEditor();
    QLabel &PanelAt(StatusPanel panel);

    DocumentWindowParts Parts_;
    EditorView View_;
    QWidget *Client_;
    ScintillaEditor *txtCode;
    QStatusBar *stbBarraEstado;
    std::array<QLabel *, PanelCount> Panels_{};
};

} // namespace Quillbox
