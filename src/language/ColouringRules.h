// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/WordSet.h"
#include "state/LanguageDefinition.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace Quillbox {

/// How a byte of text shows; the number is the style number in the editing component.
enum class TextStyle : unsigned char {
    Text = 0,
    Number,
    Keyword,
    Operator,
    Comment,
    MultiLineComment, ///< also the line ends inside, so that a line's start state can be read there
    String,
    UserWord,
};
inline constexpr int TextStyleCount = 8;

/// What a line starts in.
enum class ColouringState { Code, MultiLineComment };

/// The state of the line that follows a line end shown in `lineEnd`.
constexpr ColouringState StateAfter(TextStyle lineEnd) {
    return lineEnd == TextStyle::MultiLineComment ? ColouringState::MultiLineComment
                                                  : ColouringState::Code;
}

/// A language definition in the form that colours text. Texts are UTF-8.
///
/// At each place the first rule that fits decides: a marker (the longest one that stands there), a
/// word, a number, an operator.
/// - A comment runs to the end of its line, a multi-line comment to its end marker, a string to the
///   next delimiter or to the end of its line. Markers are compared byte by byte, and one that
///   contains a line end is switched off.
/// - A word is a run of letters, digits, "_" and bytes from 0x80 up that does not start with a
///   digit. It is a keyword or a user word when it is listed; a keyword wins.
/// - A number is digits with at most one fraction (a point and digits) and exponent. ".5", "$FF"
///   and "%101" are numbers only where an operand may stand: not right behind a word, nor behind
///   an ordinary word, a number, a string, ")" or "]" with blanks between.
/// - Operators are single ASCII characters other than letters, digits, "_" and blanks.
class ColouringRules {
  public:
    explicit ColouringRules(const LanguageDefinition &language);

    /// Writes one style per byte of `text`, which starts at a line start in `state`; returns the
    /// state at its end. Colouring whole lines one after the other gives what colouring all of them
    /// at once gives.
    ColouringState Colour(std::string_view text, ColouringState state, TextStyle *styles) const;

  private:
    friend class ColouringScanner;

    enum class ByteClass : unsigned char {
        Single, ///< shows as its style of its own
        Word,
        Digit,
        NumberPrefix, ///< ".", "$" or "%"
        Marker,       ///< a marker may start here
    };
    enum class MarkerKind : unsigned char { Comment, MultiLineComment, String };
    struct Marker {
        std::string Text;
        MarkerKind Kind;
    };

    void ClassifyBytes();
    void AddOperators(const QString &operators);
    void AddMarker(const QString &text, MarkerKind kind);

    std::array<ByteClass, 256> Classes_{};
    std::array<ByteClass, 256> ClassesWithoutMarkers_{};
    std::array<TextStyle, 256> SingleStyles_{}; ///< Operator or Text
    std::vector<Marker> Markers_;               ///< longest first
    std::string MultiLineCommentEnd_;
    WordSet Words_;
};

} // namespace Quillbox
