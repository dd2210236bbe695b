// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ItemAttributes.h"

#include "state/settings.h"

namespace Quillbox {
namespace {

constexpr SyntaxItem Items[SyntaxItemCount] = {
    {"Palabras clave", &Settings::KeywordsColor, &Settings::KeywordsStyle},
    {"Números", &Settings::NumbersColor, &Settings::NumbersStyle},
    {"Operadores", &Settings::OperatorsColor, &Settings::OperatorsStyle},
    {"Cadenas de texto", &Settings::StringColor, &Settings::StringsStyle},
    {"Comentarios", &Settings::CommentsColor, &Settings::CommentsStyle},
    {"Texto Normal", &Settings::TextColor, &Settings::TextStyle},
    {"Fondo", &Settings::BackgroundColor, nullptr},
};

constexpr const char *Styles[] = {"Normal", "Negrita", "Cursiva", "Negrita+ Cursiva", "Subrayado"};

} // namespace

std::span<const SyntaxItem, SyntaxItemCount> SyntaxItems() { return Items; }

std::span<const char *const> StyleCaptions() { return Styles; }

void LoadColors(ItemAttributes &attributes, const Settings &settings) {
    for (std::size_t row = 0; row < attributes.size(); ++row)
        attributes[row].Color = settings.*Items[row].ColorField;
}

void LoadStyles(ItemAttributes &attributes, const Settings &settings) {
    for (std::size_t row = 0; row < BackgroundRow; ++row)
        attributes[row].Style = settings.*Items[row].StyleField;
}

void SaveColors(const ItemAttributes &attributes, Settings &settings) {
    for (std::size_t row = 0; row < attributes.size(); ++row)
        settings.*Items[row].ColorField = attributes[row].Color;
}

void SaveStyles(const ItemAttributes &attributes, Settings &settings) {
    for (std::size_t row = 0; row < BackgroundRow; ++row)
        settings.*Items[row].StyleField = attributes[row].Style;
}

} // namespace Quillbox
