// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ColouringRules.h"

namespace Quillbox {

/// One pass of colouring rules over a text.
class ColouringScanner {
  public:
    /// `styles` has room for one style per byte of `text`.
    ColouringScanner(const ColouringRules &rules, std::string_view text, TextStyle *styles);

    ColouringState Run(ColouringState state);

  private:
    using ByteClass = ColouringRules::ByteClass;

    std::size_t ScanSingles(std::size_t position) const;
    void ScanWord();
    void ScanOther();
    void ScanMarker(ByteClass otherwise);
    void ScanNumber();
    void ScanPrefixed();
    void ScanComment();
    void ScanString(const std::string &delimiter);
    void ScanMultiLineComment(std::size_t searchStart);

    bool IsBehindOperand() const;
    ByteClass ClassAt(std::size_t position) const {
        return Rules_.Classes_[static_cast<unsigned char>(Text_[position])];
    }
    TextStyle SingleStyleAt(std::size_t position) const {
        return Rules_.SingleStyles_[static_cast<unsigned char>(Text_[position])];
    }
    std::size_t DigitsEnd(std::size_t position) const;
    std::size_t FractionEnd(std::size_t position) const;
    std::size_t PrefixedNumberEnd() const;
    std::size_t LineEnd(std::size_t position) const;
    /// NUL behind the end.
    char ByteAt(std::size_t position) const {
        return position < Text_.size() ? Text_[position] : '\0';
    }
    void Fill(std::size_t end, TextStyle style);

    const ColouringRules &Rules_;
    std::string_view Text_;
    TextStyle *Styles_;
    std::size_t Position_ = 0;
    bool CommentOpen_ = false;
};

} // namespace Quillbox
