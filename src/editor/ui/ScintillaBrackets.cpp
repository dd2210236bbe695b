// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaBrackets.h"

#include "base/Color.h"
#include "editor/ui/ScintillaMarks.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;
using Match = BracketPair::Match;

constexpr std::string_view Opening = "([{";
constexpr std::string_view Closing = ")]}";

/// Bytes that are coloured and read at a time: most brackets are near.
constexpr BytePosition PieceSize = 2048;

constexpr Color MatchColor = RgbColor(51, 132, 228);
constexpr Color MissingColor = RgbColor(220, 50, 47);
constexpr int FillAlpha = 70;
constexpr int OutlineAlpha = 255;

bool IsIn(std::string_view set, char byte) { return set.find(byte) != std::string_view::npos; }

char PartnerOf(char bracket) {
    const std::size_t opening = Opening.find(bracket);
    return opening != std::string_view::npos ? Closing[opening] : Opening[Closing.find(bracket)];
}

/// Code is all one; a string or a comment is a stretch of its own.
TextStyle RegionOf(TextStyle style) {
    const bool apart = style == TextStyle::Comment || style == TextStyle::MultiLineComment ||
                       style == TextStyle::String;
    return apart ? style : TextStyle::Text;
}

/// The search for the partner of one bracket, piece by piece away from it.
class BracketSearch {
  public:
    BracketSearch(const ScintillaText &text, ScintillaColouring &colouring, BytePosition bracket)
        : Text_(text)
        , Colouring_(colouring)
        , Bracket_(bracket) {
        Colouring_.ColourUpTo(bracket + 1);
        Own_ = Text_.Bytes(bracket, bracket + 1)[0];
        Partner_ = PartnerOf(Own_);
        Region_ = RegionOf(Colouring_.StyleAt(bracket));
    }

    BracketPair Run() {
        const bool found = IsIn(Opening, Own_) ? SearchForward() : SearchBackward();
        if (found)
            return {Match::Found, Bracket_, Other_};
        // A smile in a comment needs no partner.
        const bool mustMatch = Region_ == TextStyle::Text && !TooFar_;
        return {mustMatch ? Match::Missing : Match::None, Bracket_, -1};
    }

  private:
    bool SearchForward() {
        const BytePosition end = std::min(Text_.Length(), Bracket_ + MostBytesToBracket);
        TooFar_ = end < Text_.Length();
        for (BytePosition start = Bracket_ + 1; start < end && !Ended_; start += PieceSize) {
            const BytePosition pieceEnd = std::min(start + PieceSize, end);
            Colouring_.ColourUpTo(pieceEnd);
            const std::string_view piece = Text_.Bytes(start, pieceEnd);
            for (std::size_t at = 0; at < piece.size() && !Ended_; ++at)
                if (IsPartner(piece[at], start + static_cast<BytePosition>(at)))
                    return true;
        }
        return false;
    }

    bool SearchBackward() {
        const BytePosition begin = std::max<BytePosition>(0, Bracket_ - MostBytesToBracket);
        TooFar_ = begin > 0;
        for (BytePosition end = Bracket_; end > begin && !Ended_; end -= PieceSize) {
            const BytePosition start = std::max(end - PieceSize, begin);
            const std::string_view piece = Text_.Bytes(start, end);
            for (std::size_t at = piece.size(); at > 0 && !Ended_; --at)
                if (IsPartner(piece[at - 1], start + static_cast<BytePosition>(at) - 1))
                    return true;
        }
        return false;
    }

    bool IsPartner(char byte, BytePosition position) {
        const bool inCode = Region_ == TextStyle::Text;
        if (inCode && byte != Own_ && byte != Partner_)
            return false;
        const bool sameRegion = RegionOf(Colouring_.StyleAt(position)) == Region_;
        Ended_ = !inCode && !sameRegion;
        TooFar_ = TooFar_ && !Ended_;
        if (!sameRegion)
            return false;
        Depth_ += byte == Own_ ? 1 : 0;
        Depth_ -= byte == Partner_ ? 1 : 0;
        Other_ = position;
        return Depth_ == 0;
    }

    const ScintillaText &Text_;
    ScintillaColouring &Colouring_;
    BytePosition Bracket_;
    BytePosition Other_ = -1;
    char Own_ = 0;
    char Partner_ = 0;
    TextStyle Region_ = TextStyle::Text;
    int Depth_ = 1;
    bool Ended_ = false;  ///< the string or comment is over
    bool TooFar_ = false; ///< the text goes on where the search must stop
};

/// The bracket at the caret that people mean: one that the caret stands outside of goes first.
BytePosition BracketAtCaret(const ScintillaText &text) {
    const BytePosition caret = text.Caret();
    const auto isAt = [&](BytePosition position, std::string_view set) {
        return position >= 0 && position < text.Length() &&
               IsIn(set, text.Bytes(position, position + 1)[0]);
    };
    if (isAt(caret, Opening))
        return caret;
    if (isAt(caret - 1, Closing))
        return caret - 1;
    if (isAt(caret, Closing))
        return caret;
    return isAt(caret - 1, Opening) ? caret - 1 : -1;
}

void SetUpBox(const ScintillaText &text, int indicator, Color color) {
    text.Send(Sci::SCI_INDICSETSTYLE, indicator, Sci::INDIC_STRAIGHTBOX);
    text.Send(Sci::SCI_INDICSETFORE, indicator, color.Value);
    text.Send(Sci::SCI_INDICSETALPHA, indicator, FillAlpha);
    text.Send(Sci::SCI_INDICSETOUTLINEALPHA, indicator, OutlineAlpha);
    text.Send(Sci::SCI_INDICSETUNDER, indicator, 1);
}

} // namespace

BracketPair FindBrackets(const ScintillaText &text, ScintillaColouring &colouring) {
    const BytePosition bracket = BracketAtCaret(text);
    return bracket < 0 ? BracketPair() : BracketSearch(text, colouring, bracket).Run();
}

void SetUpBracketMarks(const ScintillaText &text) {
    SetUpBox(text, Indicator::BracketPair, MatchColor);
    SetUpBox(text, Indicator::LoneBracket, MissingColor);
    text.Send(Sci::SCI_BRACEHIGHLIGHTINDICATOR, 1, Indicator::BracketPair);
    text.Send(Sci::SCI_BRACEBADLIGHTINDICATOR, 1, Indicator::LoneBracket);
}

void MarkBrackets(const ScintillaText &text, ScintillaColouring &colouring) {
    const BracketPair pair = FindBrackets(text, colouring);
    if (pair.Result == Match::Missing)
        text.Send(Sci::SCI_BRACEBADLIGHT, pair.Bracket);
    else if (pair.Result == Match::Found)
        text.Send(Sci::SCI_BRACEHIGHLIGHT, pair.Bracket, pair.Other);
    else
        text.Send(Sci::SCI_BRACEHIGHLIGHT, -1, -1);
}

void GoToMatchingBracket(const ScintillaText &text, ScintillaColouring &colouring) {
    const BracketPair pair = FindBrackets(text, colouring);
    if (pair.Result == Match::Found)
        text.MoveCaret(pair.Other < pair.Bracket ? pair.Other : pair.Other + 1);
}

} // namespace Quillbox
