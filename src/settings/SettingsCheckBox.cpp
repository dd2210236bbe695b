// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsCheckBox.h"

#include "state/settings.h"

namespace Quillbox {
namespace {

constexpr SettingsCheckBox CheckBoxes[] = {
    {"chkColorSyntax", &Settings::ColorSyntax, "Colorear &Sintaxis",
     "Activa/Desactiva el color de la sintaxis", SettingsFrame::FontAndColors,
     Storing::BeforeTabSize},
    {"chkLineNumbers", &Settings::LineNumbers, "Números de Línea", "¿Mostrar los números de línea?",
     SettingsFrame::Others},
    {"chkFunciones", &Settings::ShowFunctions, "Procesos",
     "Recopila la lista de funciones programadas", SettingsFrame::Symbols},
    {"chkLabels", &Settings::ShowLabels, "Etiquetas",
     "Recopila una lista de etiquetas establecidas", SettingsFrame::Symbols, Storing::AfterScan},
    {"chkTypes", &Settings::ShowTypes, "Types", "Recopila una lista de Types definidos",
     SettingsFrame::Symbols, Storing::AfterScan},
    {"chkQuickHelp", &Settings::ShowQuickHelp, "Mostrar ayuda rápida",
     "Muestra la ayuda rápida en la barra de estado", SettingsFrame::Help},
};

} // namespace

std::span<const SettingsCheckBox> SettingsCheckBoxes() { return CheckBoxes; }

} // namespace Quillbox
