// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/ui/frmProjectInfo.h"

#include "project/ProjectInfo.h"
#include "project/ui/EntryList.h"
#include "widgets/Controls.h"
#include "widgets/EventBoundary.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Quillbox {
namespace {

constexpr QSize InitialSize(560, 400);

} // namespace

frmProjectInfo::frmProjectInfo(ProjectInfo &rules, const EventBoundary &boundary, QWidget *owner)
    : QDialog(owner)
    , Rules_(rules)
    , Boundary_(boundary) {
    setObjectName(QStringLiteral("frmProjectInfo"));
    setWindowTitle(QStringLiteral("Información del Proyecto"));
    auto *layout = new QVBoxLayout(this);
    BuildFields(*layout);
    BuildList(*layout);
    resize(InitialSize);
    ShowTexts(Rules_.Form_Load());
    txtTitle->setFocus();
    connect(this, &QDialog::finished, this, [this] {
        Boundary_.Run([this] { Rules_.Form_Unload(Texts()); });
        deleteLater();
    });
}

void frmProjectInfo::BuildFields(QVBoxLayout &layout) {
    auto *grid = new QGridLayout;
    layout.addLayout(grid);
    txtProjectPath = AddTextBox(*grid, QStringLiteral("txtProjectPath"),
                                QStringLiteral("Archivo del &proyecto:"));
    txtTitle = AddTextBox(*grid, QStringLiteral("txtTitle"), QStringLiteral("&Título:"));
    txtAuthor = AddTextBox(*grid, QStringLiteral("txtAuthor"), QStringLiteral("A&utor:"));
    txtMainFile =
        AddTextBox(*grid, QStringLiteral("txtMainFile"), QStringLiteral("Programa p&rincipal:"));
    for (QLineEdit *box : {txtProjectPath, txtMainFile}) {
        box->setReadOnly(true);
        box->setFrame(false);
        QPalette colors = box->palette();
        colors.setColor(QPalette::Base, colors.color(QPalette::Window));
        box->setPalette(colors);
    }
}

void frmProjectInfo::BuildList(QVBoxLayout &layout) {
    auto *caption = new QLabel(QStringLiteral("&Archivos:"), this);
    lstFiles = new EntryList(QStringLiteral("lstFiles"), this);
    lstFiles->setTextElideMode(Qt::ElideMiddle);
    caption->setBuddy(lstFiles);
    auto *hint = new QLabel(QStringLiteral("Doble clic o Intro abre el archivo."), this);
    auto *add = NewButton("cmdAñadir", "Aña&dir...");
    auto *remove = NewButton("cmdBorrar", "&Borrar");
    auto *closing = NewButton("cmdCerrar", "&Cerrar");
    closing->setDefault(true);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->addWidget(lstFiles);
    row->addLayout(buttons);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(hint);
    bottom->addStretch();
    bottom->addWidget(closing);
    layout.addWidget(caption);
    layout.addLayout(row, 1);
    layout.addLayout(bottom);

    connect(add, &QPushButton::clicked, this, &frmProjectInfo::OnAdd);
    connect(remove, &QPushButton::clicked, this, &frmProjectInfo::OnRemove);
    connect(closing, &QPushButton::clicked, this, &QDialog::reject);
    connect(lstFiles, &EntryList::DeletePressed, this, &frmProjectInfo::OnRemove);
    connect(lstFiles, &EntryList::Activated, this, &frmProjectInfo::OnOpen);
}

void frmProjectInfo::ShowTexts(const ProjectInfoTexts &texts) {
    ShowFromStart(*txtProjectPath, texts.ProjectPath);
    ShowFromStart(*txtTitle, texts.Title);
    ShowFromStart(*txtAuthor, texts.Author);
    ShowFromStart(*txtMainFile, texts.MainFile);
    for (const QString &path : texts.Files)
        lstFiles->AddEntry(path);
}

ProjectInfoTexts frmProjectInfo::Texts() const {
    return {txtProjectPath->text(), txtTitle->text(), txtAuthor->text(), txtMainFile->text(),
            lstFiles->Texts()};
}

void frmProjectInfo::OnAdd() {
    Boundary_.Run([this] {
        const auto chosen = Rules_.cmdAñadir_Click();
        if (!chosen)
            return;
        lstFiles->AddEntry(*chosen);
        lstFiles->setCurrentRow(lstFiles->count() - 1);
    });
}

void frmProjectInfo::OnRemove() {
    Boundary_.Run([this] {
        const auto selected = lstFiles->Selected();
        if (Rules_.cmdBorrar_Click(selected))
            delete lstFiles->takeItem(*selected);
    });
}

void frmProjectInfo::OnOpen() {
    Boundary_.Run([this] {
        const auto selected = lstFiles->Selected();
        Rules_.lstFiles_DblClick(selected ? std::optional(lstFiles->item(*selected)->text())
                                          : std::nullopt);
    });
}

} // namespace Quillbox
