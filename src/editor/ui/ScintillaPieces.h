// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

#include <functional>

namespace Quillbox {

/// Whole lines of a text; the line end of the last one is left out.
struct TextPiece {
    BytePosition Start;
    std::string_view Bytes; ///< valid until the next change of the text
};

enum class PieceOrder { Forward, Backward };

/// Hands over the lines from that of `start` to that of `end` where they lie. The component's
/// buffer has a gap at the place of the last edit; the pieces are cut around the line that it is
/// in, so that no text is moved to close it but that of this line. False from `visit` ends it.
void VisitPieces(const ScintillaText &text, BytePosition start, BytePosition end, PieceOrder order,
                 const std::function<bool(const TextPiece &)> &visit);

} // namespace Quillbox
