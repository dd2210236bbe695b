// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/ContextTab.h"

#include "base/CreditLine.h"
#include "widgets/Controls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace Quillbox {
namespace {

QGroupBox *Grouped(const char *caption, std::initializer_list<QCheckBox *> boxes) {
    auto *group = new QGroupBox(QString::fromUtf8(caption));
    auto *column = new QVBoxLayout(group);
    for (QCheckBox *box : boxes)
        column->addWidget(box);
    return group;
}

QLabel *NewCredit() {
    auto *credit = NewControl<QLabel>("Label5", "");
    credit->setText(CreditLine);
    credit->setAlignment(Qt::AlignCenter);
    credit->setWordWrap(true);
    return credit;
}

} // namespace

ContextTab::ContextTab()
    : chkQuickHelp(NewControl<QCheckBox>("chkQuickHelp", "Mostrar ayuda rápida",
                                         "Muestra la ayuda rápida en la barra de estado"))
    , chkFunciones(NewControl<QCheckBox>("chkFunciones", "Procesos",
                                         "Recopila la lista de funciones programadas"))
    , chkLabels(NewControl<QCheckBox>("chkLabels", "Etiquetas",
                                      "Recopila una lista de etiquetas establecidas"))
    , chkTypes(
          NewControl<QCheckBox>("chkTypes", "Types", "Recopila una lista de Types definidos")) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(Grouped("Ayuda", {chkQuickHelp}));
    layout->addWidget(Grouped("Recopilación de Datos", {chkFunciones, chkLabels, chkTypes}));
    layout->addStretch();
    layout->addWidget(NewCredit());
}

} // namespace Quillbox
