// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "language/ColouringRules.h"
#include "surfaces/EditorAppearance.h"

#include <array>

namespace Quillbox {

/// Colours, fonts and margins of an editing component. Setting what is set already costs nothing.
class ScintillaStyles {
  public:
    explicit ScintillaStyles(const ScintillaText &text);

    void SetColorSyntax(bool on);
    void SetColor(ColorSlot slot, Color color);
    void SetFontStyle(FontStyleClass textClass, int style);
    void SetFontName(const QString &name);
    void SetFontSize(int points);
    void SetTabSize(int columns);
    void SetLineNumbers(bool shown);

    /// Fits the margin to the number of lines.
    void TextLinesChanged();
    /// Fits the margin to the size at which digits show.
    void ZoomChanged() { ApplyMarginWidth(); }
    /// Settings that belong to the text shown and not to the component are made again.
    void TextReplaced();

  private:
    static constexpr std::size_t SlotCount = 31;
    static constexpr std::size_t ClassCount = 9;

    void SetUpMargins() const;
    void ApplyAll();
    void ApplyClasses();
    void ApplyStyle(int number, Color foreground, Color background, FontStyleClass textClass);
    void ApplyAccents();
    void ApplyMarginWidth();
    Color &SlotOf(ColorSlot slot) { return Colors_[static_cast<std::size_t>(slot)]; }
    Color ColorOf(ColorSlot slot) const { return Colors_[static_cast<std::size_t>(slot)]; }

    const ScintillaText &Text_;
    std::array<Color, SlotCount> Colors_;
    std::array<int, ClassCount> FontStyles_{};
    QString FontName_ = QStringLiteral("Courier");
    QByteArray FontFamily_; ///< the installed one that stands for FontName_
    int FontSize_ = 10;
    int TabSize_ = 8;
    int NumberDigits_ = 0;
    bool ColorSyntax_ = true;
    bool LineNumbers_ = false;
};

} // namespace Quillbox
