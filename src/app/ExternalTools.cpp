// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ExternalTools.h"

#include "surfaces/CompanionPrograms.h"
#include "surfaces/Programs.h"

namespace Quillbox {

ExternalTools::ExternalTools(CompanionPrograms &companions, Programs &programs)
    : Companions_(companions)
    , Programs_(programs) {}

void ExternalTools::mnuHerramientas_Calculadora_Click() {
    Programs_.Start(QStringLiteral("calc.exe"), WindowStyle::Minimized);
}

void ExternalTools::mnuHerramientas_ScaffolderGenerator_Click() {
    Companions_.Start(QStringLiteral("Scaffolder"), QStringLiteral("Scaffolder.exe"),
                      WindowStyle::Normal);
}

void ExternalTools::mnuAyuda_Inkwell_Click() {
    Companions_.ShowHelpPage(QStringLiteral("index.htm"));
}

} // namespace Quillbox
