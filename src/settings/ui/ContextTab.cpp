// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ui/ContextTab.h"

#include "base/CreditLine.h"
#include "settings/SettingsCheckBox.h"
#include "settings/ui/CheckBoxes.h"
#include "widgets/Controls.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace Quillbox {
namespace {

QGroupBox *Framed(const char *caption, SettingsFrame frame) {
    auto *group = new QGroupBox(QString::fromUtf8(caption));
    AddCheckBoxes(*new QVBoxLayout(group), frame);
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

ContextTab::ContextTab() {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(Framed("Ayuda", SettingsFrame::Help));
    layout->addWidget(Framed("Recopilación de Datos", SettingsFrame::Symbols));
    layout->addStretch();
    layout->addWidget(NewCredit());
}

} // namespace Quillbox
