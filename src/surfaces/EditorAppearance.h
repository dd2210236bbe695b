// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Color.h"

#include <QString>

namespace Quillbox {

/// Colour slots of the editor control. Each class of text has a foreground and a background slot.
enum class ColorSlot {
    Window = 0, ///< what lies behind and below the text
    Margin = 1, ///< background of the margin with line numbers and bookmarks
    Text = 4,
    TextBackground = 5,
    Number = 6,
    NumberBackground = 7,
    Keyword = 8,
    KeywordBackground = 9,
    Operator = 10,
    OperatorBackground = 11,
    Comment = 14,
    CommentBackground = 15,
    String = 16,
    StringBackground = 17,
    UserWord = 20, ///< the document's own function names
    UserWordBackground = 21,
    MarginDivider = 27,   ///< the line between the margin and the text
    HighlightedLine = 30, ///< tint of the line that an error message names
};

/// Classes of text that carry a font style of their own.
enum class FontStyleClass {
    Text = 0,
    Number = 1,
    Keyword = 2,
    Operator = 3,
    Comment = 5,
    String = 6,
    UserWord = 8,
};

/// Font styles as the settings file numbers them; any other number shows as `Normal`.
enum class FontStyle { Normal = 0, Bold = 1, Italic = 2, BoldItalic = 3, Underline = 4 };

/// How an editor shows its text.
class EditorAppearance {
  public:
    virtual ~EditorAppearance() = default;

    /// Chooses a registered language by its name; an unknown name leaves the text uncoloured.
    virtual void SetLanguage(const QString &name) = 0;
    virtual void SetColorSyntax(bool on) = 0;
    virtual void SetColor(ColorSlot slot, Color color) = 0;
    /// `style` is one of FontStyle; any other number shows as normal text.
    virtual void SetFontStyle(FontStyleClass textClass, int style) = 0;
    virtual void SetFontName(const QString &name) = 0;
    /// In points; 0 leaves the smallest size that can be shown.
    virtual void SetFontSize(int points) = 0;
    /// Width of a tab stop in columns; 0 counts as 1.
    virtual void SetTabSize(int columns) = 0;
    virtual void SetLineNumbers(bool shown) = 0;
};

} // namespace Quillbox
