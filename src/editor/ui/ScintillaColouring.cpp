// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaColouring.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// Bytes that are coloured at a time; a piece ends at a line end all the same. Pieces grow, so that
/// an edit whose effect ends soon costs little and a long text is coloured at full speed.
constexpr BytePosition FirstPieceSize = 512;
constexpr BytePosition LargestPieceSize = BytePosition{64} * 1024;

/// Room for the styles of one very long line is given back.
constexpr std::size_t MostKeptStyles = std::size_t{1024} * 1024;

} // namespace

ScintillaColouring::ScintillaColouring(const ScintillaText &text)
    : Text_(text) {}

void ScintillaColouring::SetRules(std::shared_ptr<const ColouringRules> rules,
                                  LanguageChange change) {
    Rules_ = std::move(rules);
    if (change == LanguageChange::UserWordsOnly)
        Extent_.InvalidateUserWords(FirstShownPosition());
    else
        Extent_.InvalidateFrom(0);
    TellEndOfColours();
}

void ScintillaColouring::TextInserted(BytePosition position, BytePosition length) {
    Extent_.Insert(position, length);
}

void ScintillaColouring::TextDeleted(BytePosition position, BytePosition length) {
    Extent_.Delete(position, length);
}

void ScintillaColouring::TextReplaced() {
    Extent_ = {};
    GivenAway_ = false;
}

void ScintillaColouring::TakeOver(ScintillaColouring &other) {
    Extent_ = other.Extent_;
    GivenAway_ = false;
    other.GivenAway_ = true;
    if (Rules_ != other.Rules_) {
        Extent_.InvalidateFrom(0);
        TellEndOfColours();
    }
}

void ScintillaColouring::ColourUpTo(BytePosition end) {
    if (GivenAway_)
        return;
    Synchronise();
    BytePosition pieceSize = FirstPieceSize;
    while (Extent_.ValidEnd < end) {
        const BytePosition start = Text_.LineStart(Text_.LineOf(Extent_.ValidEnd));
        const BytePosition pieceEnd = PieceEnd(start, std::min(end, start + pieceSize));
        ColourPiece(start, pieceEnd);
        const bool mayJump = MayJumpFrom(start, pieceEnd);
        WriteStyles(start, pieceEnd - start);
        Extent_.Advance(pieceEnd);
        if (mayJump)
            Extent_.Jump();
        pieceSize = std::min(pieceSize * 2, LargestPieceSize);
    }
    TellEndOfColours();
    if (Styles_.size() > MostKeptStyles)
        std::vector<TextStyle>().swap(Styles_);
}

void ScintillaColouring::PrepareShownText() {
    const std::int64_t before = Extent_.ValidEnd;
    Extent_.Show(FirstShownPosition());
    if (Extent_.ValidEnd != before)
        TellEndOfColours();
}

void ScintillaColouring::PrepareTextUpTo(BytePosition end) {
    Extent_.Show(0);
    TellEndOfColours();
    ColourUpTo(end);
}

void ScintillaColouring::ColourPiece(BytePosition start, BytePosition end) {
    const std::string_view bytes = Text_.Bytes(start, end);
    if (Styles_.size() < bytes.size())
        Styles_.resize(bytes.size());
    if (!Rules_) {
        std::fill_n(Styles_.begin(), bytes.size(), TextStyle::Text);
        return;
    }
    const auto before = start == 0 ? TextStyle::Text : StyleAt(start - 1);
    Rules_->Colour(bytes, StateAfter(before), Styles_.data());
}

/// The end of the line that reaches `wanted`. As long as an edit lies ahead, the piece goes no
/// further than the first line end behind it, where colours of before may turn out to be right.
BytePosition ScintillaColouring::PieceEnd(BytePosition start, BytePosition wanted) const {
    BytePosition last = wanted;
    if (Extent_.OldEnd > start && Extent_.ChangedEnd > start)
        last = std::min<BytePosition>(last, Extent_.ChangedEnd + 1);
    return Text_.NextLineStart(Text_.LineOf(std::max(start, last - 1)));
}

/// True when the line behind the coloured piece starts as it did before.
bool ScintillaColouring::MayJumpFrom(BytePosition start, BytePosition end) const {
    if (!Extent_.MayJump(end))
        return false;
    const TextStyle now = Styles_[static_cast<std::size_t>(end - 1 - start)];
    return StateAfter(now) == StateAfter(StyleAt(end - 1));
}

void ScintillaColouring::WriteStyles(BytePosition start, BytePosition length) {
    Text_.Send(Sci::SCI_STARTSTYLING, start);
    Text_.Send(Sci::SCI_SETSTYLINGEX, length, reinterpret_cast<std::intptr_t>(Styles_.data()));
}

TextStyle ScintillaColouring::StyleAt(BytePosition position) const {
    return static_cast<TextStyle>(Text_.Send(Sci::SCI_GETSTYLEAT, position));
}

BytePosition ScintillaColouring::FirstShownPosition() const {
    const auto line = static_cast<int>(Text_.Send(Sci::SCI_GETFIRSTVISIBLELINE));
    return Text_.LineStart({line});
}

/// The component has its own idea of the end of colours; it goes back when it asks for a stretch
/// once more.
void ScintillaColouring::Synchronise() {
    const std::int64_t told = Text_.Send(Sci::SCI_GETENDSTYLED);
    if (told < Extent_.ValidEnd)
        Extent_.InvalidateFrom(told);
}

void ScintillaColouring::TellEndOfColours() {
    if (GivenAway_)
        return;
    Text_.Send(Sci::SCI_STARTSTYLING, static_cast<BytePosition>(Extent_.ValidEnd));
}

} // namespace Quillbox
