// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ItemAttributes.h"

#include "state/settings.h"

#include <gmock/gmock.h>

namespace Quillbox {
namespace {

using testing::ElementsAre;

Settings Coloured() {
    Settings settings;
    settings.KeywordsColor = {1};
    settings.NumbersColor = {2};
    settings.OperatorsColor = {3};
    settings.StringColor = {4};
    settings.CommentsColor = {5};
    settings.TextColor = {6};
    settings.BackgroundColor = {7};
    settings.KeywordsStyle = 10;
    settings.NumbersStyle = 20;
    settings.OperatorsStyle = 30;
    settings.StringsStyle = 40;
    settings.CommentsStyle = 50;
    settings.TextStyle = 60;
    return settings;
}

TEST(SyntaxItems, AreNamedInTheirOrder) {
    std::vector<std::string> captions;
    for (const SyntaxItem &item : SyntaxItems())
        captions.emplace_back(item.Caption);
    EXPECT_THAT(captions, ElementsAre("Palabras clave", "Números", "Operadores", "Cadenas de texto",
                                      "Comentarios", "Texto Normal", "Fondo"));
}

TEST(StyleCaptions, AreNamedInTheirOrder) {
    const auto captions = StyleCaptions();
    EXPECT_THAT(std::vector<std::string>(captions.begin(), captions.end()),
                ElementsAre("Normal", "Negrita", "Cursiva", "Negrita+ Cursiva", "Subrayado"));
}

TEST(ItemAttributes, TakeEveryColourFromItsSetting) {
    ItemAttributes attributes;
    LoadColors(attributes, Coloured());
    for (std::size_t row = 0; row < attributes.size(); ++row)
        EXPECT_EQ(attributes[row].Color, Color{static_cast<int>(row) + 1});
}

TEST(ItemAttributes, TakeEveryStyleFromItsSettingAndLeaveTheBackgroundWithoutOne) {
    ItemAttributes attributes;
    LoadStyles(attributes, Coloured());
    for (std::size_t row = 0; row < BackgroundRow; ++row)
        EXPECT_EQ(attributes[row].Style, (row + 1) * 10);
    EXPECT_EQ(attributes[BackgroundRow].Style, 0);
}

TEST(ItemAttributes, GiveEveryColourAndStyleBackToItsSetting) {
    ItemAttributes attributes;
    LoadColors(attributes, Coloured());
    LoadStyles(attributes, Coloured());
    Settings settings;
    SaveColors(attributes, settings);
    SaveStyles(attributes, settings);
    EXPECT_EQ(settings, Coloured());
}

TEST(ItemAttributes, KeepAColourThatNamesOneOfTheSystem) {
    Settings settings;
    settings.TextColor = {-2147483633};
    ItemAttributes attributes;
    LoadColors(attributes, settings);
    settings.TextColor = {};
    SaveColors(attributes, settings);
    EXPECT_EQ(settings.TextColor, Color{-2147483633});
}

} // namespace
} // namespace Quillbox
