// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorView.h"
#include "editor/TextFollower.h"
#include "surfaces/DocumentWindow.h"

#include <QMdiSubWindow>

#include <array>
#include <functional>

class QLabel;
class QStatusBar;

namespace Quillbox {

class DocumentArea;
class EventBoundary;
class ScintillaEditor;

/// The rules over one document's window.
struct DocumentRules {
    EditorView View;
    TextFollower Text;
};

/// The child window of one document: the editor txtCode and the status bar stbBarraEstado.
class frmDoc final : public QMdiSubWindow, public DocumentWindow {
    Q_OBJECT
  public:
    using RulesMaker = std::function<DocumentRules(DocumentWindow &)>;
    /// Takes `editor` over. `closeRequested`: the person wants the active document closed.
    frmDoc(DocumentArea &area, ScintillaEditor *editor, const RulesMaker &rulesOver,
           const EventBoundary &boundary, std::function<void()> closeRequested);

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

    DocumentArea &Area_;
    DocumentRules Rules_;
    const EventBoundary &Boundary_;
    std::function<void()> CloseRequested_;
    QWidget *Client_;
    ScintillaEditor *txtCode;
    QStatusBar *stbBarraEstado;
    std::array<QLabel *, PanelCount> Panels_{};
};

} // namespace Quillbox
