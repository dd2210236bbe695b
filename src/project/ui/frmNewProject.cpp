// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ui/frmNewProject.h"

#include "project/NewProject.h"
#include "widgets/EventBoundary.h"
#include "widgets/FormFields.h"

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
    txtTitle = AddTextBox(*Grid_, QStringLiteral("txtTitle"), QStringLiteral("&Título:"), 2);
    txtAuthor = AddTextBox(*Grid_, QStringLiteral("txtAuthor"), QStringLiteral("A&utor:"), 2);

    txtMainSource =
        AddTextBox(*Grid_, QStringLiteral("txtMainSource"), QStringLiteral("Programa &principal:"));
    txtMainSource->setMinimumWidth(TextBoxWidth);
    const auto *browse = AddBrowseButton(QStringLiteral("cmdBrowse"),
                                         QStringLiteral("&Examinar..."), Grid_->rowCount() - 1);
    connect(browse, &QPushButton::clicked, this, [this] {
        Boundary_.Run([this] {
            if (const auto chosen = Rules_.cmdBrowse_Click())
                txtMainSource->setText(*chosen);
        });
    });

    txtTarget =
        AddTextBox(*Grid_, QStringLiteral("txtTarget"), QStringLiteral("Archivo del pro&yecto:"));
    const auto *browseTarget = AddBrowseButton(
        QStringLiteral("cmdBrowseTarget"), QStringLiteral("E&xaminar..."), Grid_->rowCount() - 1);
    connect(browseTarget, &QPushButton::clicked, this, [this] {
        Boundary_.Run([this] {
            if (const auto chosen = Rules_.cmdBrowseTarget_Click())
                txtTarget->setText(*chosen);
        });
    });
}

QPushButton *frmNewProject::AddBrowseButton(const QString &name, const QString &caption, int row) {
    QPushButton *button = NewButton(name, caption, this);
    Grid_->addWidget(button, row, BrowseColumn);
    return button;
}

void frmNewProject::BuildButtons() {
    auto *scaffolder =
        NewButton(QStringLiteral("cmdScaffolder"), QStringLiteral("&Generador de código..."), this);
    connect(scaffolder, &QPushButton::clicked, this, [this] { Boundary_.Run(StartScaffolder_); });
    auto *accept = NewButton(QStringLiteral("cmdAceptar"), QStringLiteral("&Aceptar"), this);
    accept->setDefault(true);
    auto *cancel = NewButton(QStringLiteral("cmdCancelar"), QStringLiteral("&Cancelar"), this);
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
