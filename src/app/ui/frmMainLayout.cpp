// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ui/frmMain.h"

#include "app/Toolbar.h"
#include "app/ui/DocumentTabs.h"
#include "app/ui/NavigationBar.h"
#include "documents/ui/DocumentArea.h"
#include "help/ui/frmAyuda.h"
#include "widgets/EventBoundary.h"

#include <QDockWidget>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace Quillbox {
namespace {

constexpr QSize ToolIconSize(24, 24);
constexpr int LogLines = 6;

/// Keeps the keys that select and copy for itself; the Edit menu would use them on the editor.
class LogPane final : public QPlainTextEdit {
  protected:
    bool event(QEvent *event) override {
        if (event->type() == QEvent::ShortcutOverride) {
            const auto &key = *static_cast<QKeyEvent *>(event);
            if (key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll)) {
                event->accept();
                return true;
            }
        }
        return QPlainTextEdit::event(event);
    }
};

QIcon IconNamed(const char *name) {
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

QAction *AddMenuItem(QMenu &menu, const Command &command) {
    auto *action = menu.addAction(QString::fromUtf8(command.Caption));
    action->setObjectName(QString::fromUtf8(command.Name));
    action->setShortcut(QKeySequence::fromString(QLatin1String(command.Key)));
    return action;
}

} // namespace

void frmMain::BuildMenus() {
    QMenu *menu = nullptr;
    for (const Command &command : Commands()) {
        const QString name = QString::fromUtf8(command.Name);
        if (command.IsMenu()) {
            menu = menuBar()->addMenu(QString::fromUtf8(command.Caption));
            menu->setObjectName(name);
            MenuActions_[name] = menu->menuAction();
        } else if (command.IsSeparator()) {
            menu->addSeparator();
        } else if (command.IsMenuItem()) {
            MenuActions_[name] = AddMenuItem(*menu, command);
            connect(MenuActions_[name], &QAction::triggered, this,
                    [this, &command] { Boundary_.Run([&] { Events_.MenuClick(command); }); });
        }
    }
}

void frmMain::BuildToolbar() {
    tbEstandar = addToolBar(QStringLiteral("Estándar"));
    tbEstandar->setObjectName(QStringLiteral("tbEstandar"));
    tbEstandar->setIconSize(ToolIconSize);
    tbEstandar->setMovable(false);
    tbEstandar->setContextMenuPolicy(Qt::PreventContextMenu);
    const std::vector<Command> commands = ToolbarCommands();
    for (std::size_t place = 0; place < commands.size(); ++place) {
        if (place > 0 && AreInDifferentGroups(commands[place - 1], commands[place]))
            tbEstandar->addSeparator();
        AddToolButton(commands[place]);
    }
}

/// The help page's buttons wait for pages to turn to.
void frmMain::AddToolButton(const Command &command) {
    const QString tooltip = QString::fromUtf8(command.Button.Tooltip);
    QAction *action =
        tbEstandar->addAction(IconNamed(command.Button.Icon), tooltip, this, [this, tooltip] {
            Boundary_.Run([&] { Events_.ToolButtonClick(tooltip); });
        });
    action->setObjectName(QStringLiteral("tbEstandar_") + tooltip);
    action->setToolTip(tooltip);
    action->setEnabled(command.Enabled.Needs != Needs::HelpPage);
}

void frmMain::EnableToolButtons(const QString &tooltip, bool enabled) {
    for (QAction *action : tbEstandar->actions())
        if (action->toolTip() == tooltip && !action->isSeparator())
            action->setEnabled(enabled);
}

void frmMain::BuildDocumentArea() {
    addToolBarBreak();
    NavigationBar_ = new NavigationBar(
        [this](NavigationList list) { Boundary_.Run([&] { Events_.ListUsed(list); }); });
    addToolBar(NavigationBar_);
    NavigationBar_->setContextMenuPolicy(Qt::PreventContextMenu);

    auto *centre = new QWidget;
    tabDocuments =
        new DocumentTabs([this](int tab) { Boundary_.Run([&] { Events_.TabClick(tab); }); });
    Area_ = new DocumentArea;
    HelpWindow_ = new frmAyuda(*Area_, Boundary_);
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabDocuments);
    layout->addWidget(Area_);
    setCentralWidget(centre);

    connect(Area_, &QMdiArea::subWindowActivated, this, &frmMain::OnChildActivated);
}

void frmMain::BuildLog() {
    txtLog = new LogPane;
    txtLog->setObjectName(QStringLiteral("txtLog"));
    txtLog->setReadOnly(true);
    txtLog->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtLog->setTabChangesFocus(true);
    txtLog->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtLog->setAccessibleName(QStringLiteral("Salida del compilador"));
    txtLog->setPlaceholderText(QStringLiteral("Aquí aparece lo que escribe el compilador."));

    auto *bar = new QDockWidget(QStringLiteral("Salida del compilador"));
    bar->setObjectName(QStringLiteral("clbLog"));
    bar->setFeatures(QDockWidget::NoDockWidgetFeatures);
    bar->setWidget(txtLog);
    addDockWidget(Qt::BottomDockWidgetArea, bar);
    resizeDocks({bar}, {txtLog->fontMetrics().lineSpacing() * LogLines}, Qt::Vertical);
}

} // namespace Quillbox
