// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ColouringRules.h"

namespace Quillbox {

/// One pass of colouring rules over a text.
class ColouringScanner {
  public:
    /// `styles` has room for one style per byte of `text`.
    ColouringScanner(const ColouringRules &rules, std::string_view text, TextStyle *styles);

    ColouringState Run(ColouringState state);

  private:
    using ByteClass = ColouringRules::ByteClass;

    void ScanToken(ByteClass byteClass);
    void ScanMarker();
    void ScanWord();
    void ScanPrefixed(TextStyle otherwise);
    void ScanComment();
    void ScanString(const std::string &delimiter);
    void ScanMultiLineComment(std::size_t searchStart);

    std::size_t DecimalEnd(std::size_t position) const;
    std::size_t FractionEnd(std::size_t position) const;
    std::size_t PrefixedNumberEnd() const;
    std::size_t LineEnd(std::size_t position) const;
    char ByteAt(std::size_t position) const;
    void Fill(std::size_t end, TextStyle style);
    void FillOne(TextStyle style) { Styles_[Position_++] = style; }

    const ColouringRules &Rules_;
    std::string_view Text_;
    TextStyle *Styles_;
    std::size_t Position_ = 0;
    bool OperandEnded_ = false; ///< on this line, with nothing but blanks behind it
    bool CommentOpen_ = false;
};

} // namespace Quillbox
