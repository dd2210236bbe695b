// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ui/frmNewProject.h"

#include "project/NewProject.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {
namespace {

constexpr int TextBoxWidth = 360;
constexpr int BrowseColumn = 2;

} // namespace

frmNewProject::frmNewProject(NewProject &rules, const EventBoundary &boundary,
                             std::function<void()> startScaffolder, QWidget *owner)
    : QDialog(owner)
    , Rules_(rules)
    , Boundary_(boundary)
    , StartScaffolder_(std::move(startScaffolder)) {
    setObjectName(QStringLiteral("frmNewProject"));
    setWindowTitle(QStringLiteral("Nuevo proyecto"));
    auto *layout = new QVBoxLayout(this);
    Grid_ = new QGridLayout;
    layout->addLayout(Grid_);
    layout->addSpacing(layout->spacing());
    layout->addStretch();
    BuildFields();
    BuildButtons();
}

void frmNewProject::BuildFields() {
    txtTitle = AddTextBox(*Grid_, "txtTitle", "&Título:", 2);
    txtAuthor = AddTextBox(*Grid_, "txtAuthor", "A&utor:", 2);
    txtMainSource = AddTextBox(*Grid_, "txtMainSource", "Programa &principal:");
    txtMainSource->setMinimumWidth(TextBoxWidth);
    AddBrowseButton("cmdBrowse", "&Examinar...", *txtMainSource, &NewProject::cmdBrowse_Click);
    txtTarget = AddTextBox(*Grid_, "txtTarget", "Archivo del pro&yecto:");
    AddBrowseButton("cmdBrowseTarget", "E&xaminar...", *txtTarget,
                    &NewProject::cmdBrowseTarget_Click);
}

void frmNewProject::AddBrowseButton(const QString &name, const QString &caption, QLineEdit &box,
                                    std::optional<QString> (NewProject::*choose)()) {
    QPushButton *button = NewButton(name, caption);
    Grid_->addWidget(button, Grid_->rowCount() - 1, BrowseColumn);
    connect(button, &QPushButton::clicked, this, [this, &box, choose] {
        Boundary_.Run([&] {
            if (const auto chosen = (Rules_.*choose)())
                box.setText(*chosen);
        });
    });
}

void frmNewProject::BuildButtons() {
    auto *scaffolder = NewButton("cmdScaffolder", "&Generador de código...");
    connect(scaffolder, &QPushButton::clicked, this, [this] { Boundary_.Run(StartScaffolder_); });
    auto *accept = NewButton("cmdAceptar", "&Aceptar");
    accept->setDefault(true);
    auto *cancel = NewButton("cmdCancelar", "&Cancelar");
    connect(accept, &QPushButton::clicked, this, &frmNewProject::OnAccept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addWidget(scaffolder);
    row->addStretch();
    row->addWidget(accept);
    row->addWidget(cancel);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

/// A refusal leads to the text box that is still empty.
void frmNewProject::OnAccept() {
    Boundary_.Run([this] {
        const DialogState state = Rules_.cmdAceptar_Click(
            {txtTitle->text(), txtAuthor->text(), txtMainSource->text(), txtTarget->text()});
        if (state == DialogState::Closes)
            return accept();
        for (QLineEdit *box : {txtTitle, txtAuthor, txtMainSource, txtTarget})
            if (box->text().isEmpty())
                return box->setFocus();
    });
}

} // namespace Quillbox
