// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ApplyEditorSettings.h"

#include "state/settings.h"
#include "surfaces/DocumentWindow.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

struct SlotColor {
    ColorSlot Slot;
    Color Settings::*Field;
};

constexpr SlotColor Colors[] = {
    {ColorSlot::Comment, &Settings::CommentsColor},
    {ColorSlot::Keyword, &Settings::KeywordsColor},
    {ColorSlot::UserWord, &Settings::KeywordsColor},
    {ColorSlot::Number, &Settings::NumbersColor},
    {ColorSlot::Operator, &Settings::OperatorsColor},
    {ColorSlot::String, &Settings::StringColor},
    {ColorSlot::Text, &Settings::TextColor},
    {ColorSlot::CommentBackground, &Settings::BackgroundColor},
    {ColorSlot::KeywordBackground, &Settings::BackgroundColor},
    {ColorSlot::UserWordBackground, &Settings::BackgroundColor},
    {ColorSlot::NumberBackground, &Settings::BackgroundColor},
    {ColorSlot::OperatorBackground, &Settings::BackgroundColor},
    {ColorSlot::StringBackground, &Settings::BackgroundColor},
    {ColorSlot::TextBackground, &Settings::BackgroundColor},
    {ColorSlot::Window, &Settings::BackgroundColor},
};

constexpr Color HighlightedLineColor = RgbColor(150, 0, 0);

struct ClassStyle {
    FontStyleClass Class;
    std::uint8_t Settings::*Field;
};

constexpr ClassStyle Styles[] = {
    {FontStyleClass::Comment, &Settings::CommentsStyle},
    {FontStyleClass::Keyword, &Settings::KeywordsStyle},
    {FontStyleClass::UserWord, &Settings::KeywordsStyle},
    {FontStyleClass::Number, &Settings::NumbersStyle},
    {FontStyleClass::Operator, &Settings::OperatorsStyle},
    {FontStyleClass::String, &Settings::StringsStyle},
    {FontStyleClass::Text, &Settings::TextStyle},
};

} // namespace

void ApplyEditorSettings(DocumentWindow &window, const Settings &settings) {
    if (!settings.ShowQuickHelp)
        window.SetPanelText(StatusPanel::QuickHelp, QString());
    EditorControl &editor = window.Editor();
    editor.SetColorSyntax(settings.ColorSyntax);
    for (const auto &[slot, field] : Colors)
        editor.SetColor(slot, settings.*field);
    editor.SetColor(ColorSlot::HighlightedLine, HighlightedLineColor);
    editor.SetFontName(settings.Font);
    editor.SetFontSize(settings.FontSize);
    for (const auto &[textClass, field] : Styles)
        editor.SetFontStyle(textClass, settings.*field);
    editor.SetTabSize(settings.TabSize);
    editor.SetLineNumbers(settings.LineNumbers);
}

} // namespace Quillbox
