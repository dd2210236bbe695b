// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/TextEdits.h"

namespace Quillbox {
namespace {

/// An edit costs about as much as this many bytes that are taken over unchanged.
constexpr std::size_t LargestGap = 256;

/// So that the text of an edit is small against the text as a whole.
constexpr std::size_t LargestEdit = std::size_t{1024} * 1024;

} // namespace

TextEdits::TextEdits(Neighbours neighbours)
    : Neighbours_(neighbours) {}

void TextEdits::BeginPiece(std::size_t start, std::string_view piece) {
    PieceStart_ = start;
    Piece_ = piece;
    IsPieceEdited_ = false;
}

bool TextEdits::Joins(ByteRange range) const {
    if (Neighbours_ == Neighbours::KeepApart || !IsPieceEdited_)
        return false;
    const TextEdit &last = Edits_.back();
    return PieceStart_ + range.Start - last.Range.End <= LargestGap &&
           last.Text.size() < LargestEdit;
}

void TextEdits::Replace(ByteRange range, std::string_view replacement) {
    const ByteRange inText{PieceStart_ + range.Start, PieceStart_ + range.End};
    if (Joins(range)) {
        TextEdit &last = Edits_.back();
        const std::size_t gap = inText.Start - last.Range.End;
        last.Text += Piece_.substr(range.Start - gap, gap);
        last.Text += replacement;
        last.Range.End = inText.End;
    } else {
        Edits_.push_back({inText, std::string(replacement)});
    }
    IsPieceEdited_ = true;
    ++Count_;
    MovePlaces(inText, replacement.size());
}

void TextEdits::MovePlaces(ByteRange range, std::size_t length) {
    const auto end = static_cast<std::ptrdiff_t>(range.End);
    for (Place &place : Places_) {
        if (range.Start < place.Before && place.Before < range.End)
            place.Before = range.End;
        if (range.End <= place.Before && range.Start < place.Before)
            place.Shift += static_cast<std::ptrdiff_t>(range.Start + length) - end;
    }
}

std::size_t TextEdits::PlaceOf(std::size_t index) const {
    const Place &place = Places_[index];
    return static_cast<std::size_t>(static_cast<std::ptrdiff_t>(place.Before) + place.Shift);
}

} // namespace Quillbox
