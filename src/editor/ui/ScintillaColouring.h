// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/LanguageCatalogue.h"
#include "editor/ui/ScintillaText.h"
#include "language/ColouringExtent.h"
#include "language/ColouringRules.h"

#include <memory>
#include <vector>

namespace Quillbox {

/// Colours the text of an editing component when it asks for it, as far as it shows.
class ScintillaColouring {
  public:
    explicit ScintillaColouring(const ScintillaText &text);

    /// Null leaves the text uncoloured.
    void SetRules(std::shared_ptr<const ColouringRules> rules, LanguageChange change);

    void TextInserted(BytePosition position, BytePosition length);
    void TextDeleted(BytePosition position, BytePosition length);
    /// The component shows another text, nothing of which is coloured.
    void TextReplaced();
    /// The component shows the text of another one, with the colours that it has. From now on
    /// `other` leaves the colouring to this one, until its component shows a text of its own.
    void TakeOver(ScintillaColouring &other);

    /// Colours as far as `end` at least.
    void ColourUpTo(BytePosition end);
    /// To be called before anything is painted.
    void PrepareShownText();
    /// To be called before all the text up to `end` is painted elsewhere.
    void PrepareTextUpTo(BytePosition end);

    TextStyle StyleAt(BytePosition position) const;

  private:
    void ColourPiece(BytePosition start, BytePosition end);
    BytePosition PieceEnd(BytePosition start, BytePosition wanted) const;
    bool MayJumpFrom(BytePosition start, BytePosition end) const;
    void WriteStyles(BytePosition start, BytePosition length);
    BytePosition FirstShownPosition() const;
    void Synchronise();
    void TellEndOfColours();

    const ScintillaText &Text_;
    std::shared_ptr<const ColouringRules> Rules_;
    ColouringExtent Extent_;
    bool GivenAway_ = false;
    std::vector<TextStyle> Styles_; ///< of the piece at hand
};

} // namespace Quillbox
