// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaStyles.h"

#include "editor/ui/ScintillaMarks.h"
#include "widgets/InstalledFamily.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

struct StyleRow {
    TextStyle Style;
    ColorSlot Foreground;
    ColorSlot Background;
    FontStyleClass Font;
};

constexpr StyleRow StyleRows[] = {
    {TextStyle::Text, ColorSlot::Text, ColorSlot::TextBackground, FontStyleClass::Text},
    {TextStyle::Number, ColorSlot::Number, ColorSlot::NumberBackground, FontStyleClass::Number},
    {TextStyle::Keyword, ColorSlot::Keyword, ColorSlot::KeywordBackground, FontStyleClass::Keyword},
    {TextStyle::Operator, ColorSlot::Operator, ColorSlot::OperatorBackground,
     FontStyleClass::Operator},
    {TextStyle::Comment, ColorSlot::Comment, ColorSlot::CommentBackground, FontStyleClass::Comment},
    {TextStyle::MultiLineComment, ColorSlot::Comment, ColorSlot::CommentBackground,
     FontStyleClass::Comment},
    {TextStyle::String, ColorSlot::String, ColorSlot::StringBackground, FontStyleClass::String},
    {TextStyle::UserWord, ColorSlot::UserWord, ColorSlot::UserWordBackground,
     FontStyleClass::UserWord},
};

constexpr Color White = RgbColor(255, 255, 255);
constexpr Color Black = RgbColor(0, 0, 0);
constexpr Color SelectionBlue = RgbColor(51, 132, 228);
constexpr Color MarginDigits = RgbColor(64, 64, 64);
constexpr Color BookmarkBlue = RgbColor(40, 96, 176);
constexpr int CaretLineAlpha = 14;
constexpr int HighlightAlpha = 100;
constexpr int BookmarkMarginWidth = 14;
constexpr int FewestDigits = 4;

constexpr bool IsDark(Color color) {
    return RedOf(color) * 299 + GreenOf(color) * 587 + BlueOf(color) * 114 < 128 * 1000;
}

/// `percent` of `one`, the rest of `other`.
constexpr Color Blend(Color one, Color other, int percent) {
    const auto channel = [percent](int first, int second) {
        return (first * percent + second * (100 - percent)) / 100;
    };
    return RgbColor(channel(RedOf(one), RedOf(other)), channel(GreenOf(one), GreenOf(other)),
                    channel(BlueOf(one), BlueOf(other)));
}

int DigitsOf(int number) {
    int digits = 1;
    for (; number >= 10; number /= 10)
        ++digits;
    return digits;
}

} // namespace

ScintillaStyles::ScintillaStyles(const ScintillaText &text)
    : Text_(text)
    , FontFamily_(InstalledFamily(FontName_).toUtf8()) {
    Colors_.fill(White);
    for (const StyleRow &row : StyleRows)
        SlotOf(row.Foreground) = Black;
    SetUpMargins();
    ApplyAll();
}

void ScintillaStyles::SetColorSyntax(bool on) {
    if (std::exchange(ColorSyntax_, on) != on)
        ApplyClasses();
}

void ScintillaStyles::SetColor(ColorSlot slot, Color color) {
    if (std::exchange(SlotOf(slot), color) == color)
        return;
    for (const StyleRow &row : StyleRows)
        if (slot == row.Foreground || slot == row.Background)
            ApplyClasses();
    if (slot == ColorSlot::Window)
        ApplyAll();
    else
        ApplyAccents();
}

void ScintillaStyles::SetFontStyle(FontStyleClass textClass, int style) {
    int &known = FontStyles_[static_cast<std::size_t>(textClass)];
    if (std::exchange(known, style) != style)
        ApplyClasses();
}

void ScintillaStyles::SetFontName(const QString &name) {
    if (FontName_ == name)
        return;
    FontName_ = name;
    FontFamily_ = InstalledFamily(name).toUtf8();
    ApplyAll();
}

void ScintillaStyles::SetFontSize(int points) {
    const int shown = std::max(1, points);
    if (std::exchange(FontSize_, shown) != shown)
        ApplyAll();
}

void ScintillaStyles::SetTabSize(int columns) {
    const int width = std::max(1, columns);
    if (std::exchange(TabSize_, width) != width)
        Text_.Send(Sci::SCI_SETTABWIDTH, width);
}

void ScintillaStyles::SetLineNumbers(bool shown) {
    if (std::exchange(LineNumbers_, shown) != shown)
        ApplyMarginWidth();
}

void ScintillaStyles::TextLinesChanged() {
    if (LineNumbers_ && NumberDigits_ != std::max(FewestDigits, DigitsOf(Text_.LineCount())))
        ApplyMarginWidth();
}

void ScintillaStyles::TextReplaced() {
    Text_.Send(Sci::SCI_SETTABWIDTH, TabSize_);
    Text_.Send(Sci::SCI_SETUSETABS, 1);
    Text_.Send(Sci::SCI_SETTABINDENTS, 0);
    Text_.Send(Sci::SCI_SETBACKSPACEUNINDENTS, 0);
    TextLinesChanged();
}

void ScintillaStyles::SetUpMargins() const {
    Text_.Send(Sci::SCI_SETMARGINTYPEN, Margin::Bookmarks, Sci::SC_MARGIN_SYMBOL);
    // A tint of a whole line shows only where some margin takes its mark, too.
    Text_.Send(Sci::SCI_SETMARGINMASKN, Margin::Bookmarks,
               (1 << LineMark::Bookmark) | (1 << LineMark::Highlight));
    Text_.Send(Sci::SCI_SETMARGINWIDTHN, Margin::Bookmarks, BookmarkMarginWidth);
    Text_.Send(Sci::SCI_SETMARGINTYPEN, Margin::LineNumbers, Sci::SC_MARGIN_NUMBER);
    Text_.Send(Sci::SCI_SETMARGINMASKN, Margin::LineNumbers, 0);
    Text_.Send(Sci::SCI_SETMARGINTYPEN, Margin::Divider, Sci::SC_MARGIN_COLOUR);
    Text_.Send(Sci::SCI_SETMARGINMASKN, Margin::Divider, 0);
    Text_.Send(Sci::SCI_SETMARGINWIDTHN, Margin::Divider, 1);
    Text_.Send(Sci::SCI_SETMARGINLEFT, 0, 4);
    Text_.Send(Sci::SCI_MARKERDEFINE, LineMark::Bookmark, Sci::SC_MARK_ROUNDRECT);
    Text_.Send(Sci::SCI_MARKERSETFORE, LineMark::Bookmark, BookmarkBlue.Value);
    Text_.Send(Sci::SCI_MARKERSETBACK, LineMark::Bookmark, Blend(BookmarkBlue, White, 60).Value);
    Text_.Send(Sci::SCI_MARKERDEFINE, LineMark::Highlight, Sci::SC_MARK_BACKGROUND);
    Text_.Send(Sci::SCI_MARKERSETALPHA, LineMark::Highlight, HighlightAlpha);
    Text_.Send(Sci::SCI_SETCARETLINEVISIBLE, 1);
    Text_.Send(Sci::SCI_SETCARETLINEBACKALPHA, CaretLineAlpha);
}

void ScintillaStyles::ApplyAll() {
    ApplyStyle(Sci::STYLE_DEFAULT, ColorOf(ColorSlot::Text), ColorOf(ColorSlot::Window),
               FontStyleClass::Text);
    Text_.Send(Sci::SCI_STYLECLEARALL);
    ApplyClasses();
    ApplyAccents();
    ApplyMarginWidth();
}

void ScintillaStyles::ApplyClasses() {
    for (const StyleRow &row : StyleRows) {
        const StyleRow &shown = ColorSyntax_ ? row : StyleRows[0];
        ApplyStyle(static_cast<int>(row.Style), ColorOf(shown.Foreground),
                   ColorOf(shown.Background), shown.Font);
    }
}

void ScintillaStyles::ApplyStyle(int number, Color foreground, Color background,
                                 FontStyleClass textClass) {
    const auto style = static_cast<FontStyle>(FontStyles_[static_cast<std::size_t>(textClass)]);
    const bool bold = style == FontStyle::Bold || style == FontStyle::BoldItalic;
    const bool italic = style == FontStyle::Italic || style == FontStyle::BoldItalic;
    Text_.Send(Sci::SCI_STYLESETFONT, number,
               reinterpret_cast<std::intptr_t>(FontFamily_.constData()));
    Text_.Send(Sci::SCI_STYLESETSIZE, number, FontSize_);
    Text_.Send(Sci::SCI_STYLESETFORE, number, foreground.Value);
    Text_.Send(Sci::SCI_STYLESETBACK, number, background.Value);
    Text_.Send(Sci::SCI_STYLESETBOLD, number, bold);
    Text_.Send(Sci::SCI_STYLESETITALIC, number, italic);
    Text_.Send(Sci::SCI_STYLESETUNDERLINE, number, style == FontStyle::Underline);
}

/// What follows from the colours of the window, the margin and the highlighted line.
void ScintillaStyles::ApplyAccents() {
    const Color window = ColorOf(ColorSlot::Window);
    const Color margin = ColorOf(ColorSlot::Margin);
    const Color contrast = IsDark(window) ? White : Black;
    Text_.Send(Sci::SCI_SETCARETFORE, contrast.Value);
    Text_.Send(Sci::SCI_SETCARETLINEBACK, contrast.Value);
    const Color selection = Blend(SelectionBlue, window, 40);
    Text_.Send(Sci::SCI_SETSELBACK, 1, selection.Value);
    Text_.Send(Sci::SCI_SETADDITIONALSELBACK, selection.Value);
    Text_.Send(Sci::SCI_SETADDITIONALCARETFORE, contrast.Value);
    Text_.Send(Sci::SCI_STYLESETBACK, Sci::STYLE_LINENUMBER, margin.Value);
    Text_.Send(Sci::SCI_STYLESETFORE, Sci::STYLE_LINENUMBER,
               (IsDark(margin) ? White : MarginDigits).Value);
    Text_.Send(Sci::SCI_SETMARGINBACKN, Margin::Divider, ColorOf(ColorSlot::MarginDivider).Value);
    Text_.Send(Sci::SCI_MARKERSETBACK, LineMark::Highlight,
               ColorOf(ColorSlot::HighlightedLine).Value);
}

void ScintillaStyles::ApplyMarginWidth() {
    NumberDigits_ = std::max(FewestDigits, DigitsOf(Text_.LineCount()));
    std::intptr_t width = 0;
    if (LineNumbers_) {
        const QByteArray digits = QByteArray(NumberDigits_, '9') + ' ';
        width = Text_.Send(Sci::SCI_TEXTWIDTH, Sci::STYLE_LINENUMBER,
                           reinterpret_cast<std::intptr_t>(digits.constData()));
    }
    Text_.Send(Sci::SCI_SETMARGINWIDTHN, Margin::LineNumbers, width);
}

} // namespace Quillbox
