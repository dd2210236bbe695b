// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/TextSearch.h"

#include <string>
#include <vector>

namespace Quillbox {

/// `Text` takes the place of the bytes of `Range`.
struct TextEdit {
    ByteRange Range;
    std::string Text;
};

/// Makes few edits of many replacements: neighbours become one edit, which takes over the text
/// between them. A place of the text can be followed through all of them.
class TextEdits {
  public:
    enum class Neighbours { Join, KeepApart };

    explicit TextEdits(Neighbours neighbours);

    /// A place of the text before the edits, to be followed; before the first piece.
    void Follow(std::size_t place) { Places_.push_back({place, 0}); }
    /// Goes on in `piece`, which starts at `start` of the text.
    void BeginPiece(std::size_t start, std::string_view piece);
    /// `replacement` takes the place of `range` of the piece. Ranges come in their order.
    void Replace(ByteRange range, std::string_view replacement);

    std::size_t Count() const { return Count_; }
    /// In their order; places are those of the text before all of them.
    const std::vector<TextEdit> &Edits() const { return Edits_; }
    /// Where the place that was given as the number `index`, from 0, is behind the edits. A place
    /// within what is replaced goes behind the replacement.
    std::size_t PlaceOf(std::size_t index) const;

  private:
    struct Place {
        std::size_t Before;
        std::ptrdiff_t Shift;
    };

    bool Joins(ByteRange range) const;
    void MovePlaces(ByteRange range, std::size_t length);

    Neighbours Neighbours_;
    std::size_t PieceStart_ = 0;
    std::string_view Piece_;
    bool IsPieceEdited_ = false;
    std::size_t Count_ = 0;
    std::vector<TextEdit> Edits_;
    std::vector<Place> Places_;
};

} // namespace Quillbox
