// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/frmSettings.h"

#include "settings/ui/ChoiceList.h"
#include "settings/ui/ContextTab.h"
#include "settings/ui/EditorTab.h"
#include "settings/ui/FoldersTab.h"
#include "settings/ui/TabSizeBox.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace Quillbox {
namespace {

constexpr int InitialWidth = 480;

} // namespace

frmSettings::frmSettings(const RulesMaker &rulesOver, const EventBoundary &boundary, QWidget *owner)
    : QDialog(owner)
    , Rules_(rulesOver(*this))
    , Boundary_(boundary)
    , Folders_(new FoldersTab)
    , Editor_(new EditorTab) {
    setObjectName(QStringLiteral("frmSettings"));
    setWindowTitle(QStringLiteral("Configuración..."));
    auto *tabs = new QTabWidget;
    tabs->addTab(Folders_, QStringLiteral("Directorios"));
    tabs->addTab(Editor_, QStringLiteral("Editor"));
    tabs->addTab(new ContextTab, QStringLiteral("Contexto"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addLayout(ButtonRow());
    ConnectTabs();
    Rules_.Form_Load();
    Folders_->txtCompilerPath->setFocus();
    resize(InitialWidth, sizeHint().height());
}

/// Hiding ends the loop in which the dialog runs, so that it comes again in a loop of its own and
/// none runs inside another. A main window that was closed meanwhile takes the dialog with it.
void frmSettings::ShowUntilClosed() {
    do {
        ComesAgain_ = false;
        exec();
        if (LastFocus_)
            LastFocus_->setFocus();
    } while (ComesAgain_ && parentWidget()->isVisible());
}

/// It comes again where the person has put it, not in the middle of the main window.
void frmSettings::Hide() {
    LastFocus_ = focusWidget();
    const QPoint place = pos();
    hide();
    move(place);
}

void frmSettings::ShowAgain() { ComesAgain_ = true; }

void frmSettings::Unload() { reject(); }

QLayout *frmSettings::ButtonRow() {
    auto *row = new QHBoxLayout;
    auto *accept = AddButton(*row, "cmdAceptar", "&Aceptar", "Guarda los cambios",
                             &SettingsDialog::cmdAceptar_Click);
    accept->setDefault(true);
    AddButton(*row, "cmdAplicar", "A&plicar", "Aplica los cambios",
              &SettingsDialog::cmdAplicar_Click);
    AddButton(*row, "cmdCancelar", "&Cancelar", "Cancela los cambios",
              &SettingsDialog::cmdCancelar_Click);
    AddButton(*row, "cmdAyuda", "A&yuda", "Muestra la ayuda de la configuración",
              &SettingsDialog::cmdAyuda_Click);
    row->insertStretch(0);
    return row;
}

QPushButton *frmSettings::AddButton(QLayout &row, const char *name, const char *caption,
                                    const char *toolTip, void (SettingsDialog::*click)()) {
    auto *button = NewButton(name, caption, toolTip);
    row.addWidget(button);
    Forward(button, &QPushButton::clicked, click);
    return button;
}

template <typename Sender, typename Signal, typename... Values>
void frmSettings::Forward(const Sender *sender, Signal signal,
                          void (SettingsDialog::*handler)(Values...)) {
    connect(sender, signal, this, [this, handler](Values... values) {
        Boundary_.Run([&] { (Rules_.*handler)(values...); });
    });
}

void frmSettings::ConnectTabs() {
    Forward(Folders_->cmdCompilerBrowse, &QPushButton::clicked,
            &SettingsDialog::cmdCompilerBrowse_Click);
    Forward(Folders_->cmdHelpBrowse, &QPushButton::clicked, &SettingsDialog::cmdHelpBrowse_Click);
    Forward(Editor_->lstItems, &ChoiceList::Chosen, &SettingsDialog::lstItems_Click);
    Forward(Editor_->lstStyles, &ChoiceList::Chosen, &SettingsDialog::lstStyles_Click);
    Forward(Editor_->cmdCambiarColor, &QPushButton::clicked,
            &SettingsDialog::cmdCambiarColor_Click);
    Forward(Editor_->cmdCambiarFuente, &QPushButton::clicked,
            &SettingsDialog::cmdCambiarFuente_Click);
    TabSizeBox *spinner = Editor_->spnTabSize;
    Forward(spinner->txtTabSize, &QLineEdit::textChanged, &SettingsDialog::txtTabSize_Change);
    Forward(spinner, &QSpinBox::valueChanged, &SettingsDialog::spnTabSize_Change);
    Forward(spinner, &TabSizeBox::SpinUp, &SettingsDialog::spnTabSize_SpinUp);
    Forward(spinner, &TabSizeBox::SpinDown, &SettingsDialog::spnTabSize_SpinDown);
    spinner->CharacterTyped = [this](int code) { return Rules_.txtTabSize_KeyPress(code); };
}

QString frmSettings::Text(SettingsText box) const { return BoxOf(box).text(); }

/// A path is shown from its start. A tab size that is not the typed one is ready to be typed over.
void frmSettings::SetText(SettingsText box, const QString &text) {
    QLineEdit &textBox = BoxOf(box);
    if (textBox.text() == text)
        return;
    textBox.setText(text);
    if (box != SettingsText::TabSize)
        textBox.setCursorPosition(0);
    else if (focusWidget() == &textBox)
        textBox.selectAll();
}

bool frmSettings::IsChecked(const QString &box) const {
    return findChild<QCheckBox *>(box)->isChecked();
}

void frmSettings::SetChecked(const QString &box, bool checked) {
    findChild<QCheckBox *>(box)->setChecked(checked);
}

void frmSettings::SetTabSpinner(int value) { Editor_->spnTabSize->setValue(value); }

void frmSettings::FocusTabSize() { Editor_->spnTabSize->txtTabSize->setFocus(); }

int frmSettings::SelectedItem() const { return Editor_->lstItems->currentRow(); }

void frmSettings::SelectItem(int row) { Editor_->lstItems->setCurrentRow(row); }

void frmSettings::SelectStyle(int style) { Editor_->lstStyles->setCurrentRow(style); }

void frmSettings::EnableStyles(bool enabled) { Editor_->lstStyles->setEnabled(enabled); }

void frmSettings::SetSample(Color color) { Editor_->SetSample(color); }

void frmSettings::SetFontSample(const QString &caption, const FontChoice &font) {
    Editor_->SetFontSample(caption, font);
}

QLineEdit &frmSettings::BoxOf(SettingsText box) const {
    switch (box) {
    case SettingsText::CompilerPath:
        return *Folders_->txtCompilerPath;
    case SettingsText::HelpPath:
        return *Folders_->txtHelpPath;
    case SettingsText::TabSize:
        break;
    }
    return *Editor_->spnTabSize->txtTabSize;
}

} // namespace Quillbox
