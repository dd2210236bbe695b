// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/ui/frmDoc.h"

#include "documents/ui/DocumentArea.h"
#include "editor/ui/ScintillaEditor.h"
#include "state/DocumentRegistry.h"
#include "state/Language.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

namespace Quillbox {
namespace {

/// Texts and minimum widths of the panels at creation, widths in average characters. Panel 1 takes
/// what the others leave; panels 4 to 8 keep what they have here.
struct PanelDesign {
    const char *Text;
    int Characters;
};

constexpr PanelDesign Panels[] = {{"", 0},      {"Modificado", 12},
                                  {"1 :1", 14}, {SourceLanguage.Name.data(), 9},
                                  {"ANSI", 7},  {"", 0},
                                  {"", 0},      {"", 0}};

constexpr int PanelIndent = 6;

/// A child window's own menu would claim Ctrl+W, too, and a shortcut with two owners does nothing.
/// The File menu keeps it; the frame gets the key that closes child windows everywhere else.
void LeaveCtrlWToFileMenu(QMenu &frameMenu) {
    for (QAction *action : frameMenu.actions())
        if (!action->shortcuts().isEmpty())
            action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
}

} // namespace

frmDoc::frmDoc(DocumentArea &area, ScintillaEditor *editor, const RulesMaker &rulesOver,
               const EventBoundary &boundary, std::function<void()> closeRequested)
    : Area_(area)
    , Rules_(rulesOver(*this))
    , Boundary_(boundary)
    , CloseRequested_(std::move(closeRequested))
    , Client_(new QWidget(this))
    , txtCode(editor)
    , stbBarraEstado(new QStatusBar(Client_)) {
    setObjectName(QStringLiteral("frmDoc"));
    setWindowTitle(UntitledName);
    txtCode->setObjectName(QStringLiteral("txtCode"));
    txtCode->setParent(Client_);
    BuildStatusBar();
    PutOverStatusBar(*Client_, *txtCode, *stbBarraEstado);
    setWidget(Client_);
    LeaveCtrlWToFileMenu(*systemMenu());
    setFocusProxy(txtCode);
    Client_->setFocusProxy(txtCode);
    Client_->installEventFilter(this);
    ConnectEditor();
    Rules_.View.Form_Load();
}

EditorControl &frmDoc::Editor() { return *txtCode; }

QString frmDoc::Caption() const { return windowTitle(); }

void frmDoc::SetCaption(const QString &caption) { setWindowTitle(caption); }

/// Comes into view when its tab is selected, which follows at once. Seen before, it would be
/// painted and its text scanned in a size that it loses in the next moment.
void frmDoc::Show() { Area_.Add(this); }

void frmDoc::Activate() {
    Area_.Activate(this);
    Client_->update();
}

void frmDoc::Maximize() {
    if (!isMaximized())
        showMaximized();
}

void frmDoc::Close() {
    Area_.Remove(this);
    deleteLater();
}

void frmDoc::SetPanelText(StatusPanel panel, const QString &text) {
    PanelAt(panel).setText(text);
    PanelAt(panel).setToolTip(text);
}

void frmDoc::EnablePanel(StatusPanel panel, bool enabled) { PanelAt(panel).setEnabled(enabled); }

bool frmDoc::eventFilter(QObject *watched, QEvent *event) {
    if (watched == Client_ && event->type() == QEvent::Paint)
        Boundary_.Run([this] { Rules_.Text.Form_Paint(); });
    return QMdiSubWindow::eventFilter(watched, event);
}

/// The close box asks the same question as the menu; only Close() makes the window go.
void frmDoc::closeEvent(QCloseEvent *event) {
    event->ignore();
    Boundary_.Run(CloseRequested_);
}

void frmDoc::BuildStatusBar() {
    stbBarraEstado->setObjectName(QStringLiteral("stbBarraEstado"));
    stbBarraEstado->setSizeGripEnabled(false);
    // Opaque, so that a changed panel repaints itself and not the window beneath it.
    stbBarraEstado->setAutoFillBackground(true);
    const int characterWidth = stbBarraEstado->fontMetrics().averageCharWidth();
    for (std::size_t index = 0; index < PanelCount; ++index) {
        auto *panel = new QLabel(QString::fromUtf8(Panels[index].Text));
        panel->setObjectName(QStringLiteral("stbBarraEstado_Panel%1").arg(index + 1));
        panel->setTextFormat(Qt::PlainText);
        panel->setIndent(PanelIndent);
        panel->setMinimumWidth(Panels[index].Characters * characterWidth);
        stbBarraEstado->addWidget(panel, index == 0 ? 1 : 0);
        panel->setHidden(index > 0 && Panels[index].Characters == 0);
        Panels_[index] = panel;
    }
    // However long its text is, the first panel takes what the others leave.
    PanelAt(StatusPanel::QuickHelp).setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    EnablePanel(StatusPanel::Modified, false);
}

void frmDoc::ConnectEditor() {
    const auto forward = [this](auto signal, auto &rules, auto handler) {
        connect(txtCode, signal, this,
                [this, &rules, handler] { Boundary_.Run([&] { (rules.*handler)(); }); });
    };
    TextFollower &text = Rules_.Text;
    forward(&ScintillaEditor::TextChanged, text, &TextFollower::txtCode_Change);
    forward(&ScintillaEditor::ModifiedChanged, text, &TextFollower::txtCode_ModifiedChanged);
    forward(&ScintillaEditor::KeyDown, text, &TextFollower::txtCode_KeyDown);
    forward(&ScintillaEditor::MouseReleased, text, &TextFollower::txtCode_MouseUp);
    forward(&ScintillaEditor::CaretMoved, text, &TextFollower::txtCode_CaretMoved);
    connect(txtCode, &ScintillaEditor::KeyUp, this,
            [this, &text](int keyCode) { Boundary_.Run([&] { text.txtCode_KeyUp(keyCode); }); });
    EditorView &view = Rules_.View;
    forward(&ScintillaEditor::ContextMenuRequested, view, &EditorView::txtCode_RClick);
    forward(&ScintillaEditor::FocusReceived, view, &EditorView::txtCode_GotFocus);
    txtCode->CharacterTyped = [this](int code) {
        bool used = false;
        Boundary_.Run([&] { used = Rules_.View.txtCode_KeyPress(code); });
        return used;
    };
}

QLabel &frmDoc::PanelAt(StatusPanel panel) {
    return *Panels_.at(static_cast<std::size_t>(panel) - 1);
}

} // namespace Quillbox
