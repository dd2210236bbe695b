// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaPieces.h"

#include <algorithm>
#include <vector>

namespace Quillbox {

namespace {

struct LineSpan {
    int First;
    int Last;
};

std::vector<LineSpan> SpansAroundGap(const ScintillaText &text, int first, int last) {
    const int gap = text.LineOf(text.Send(QsciScintillaBase::SCI_GETGAPPOSITION)).Value;
    if (gap < first || gap > last)
        return {{first, last}};
    std::vector<LineSpan> spans;
    for (const LineSpan span : {LineSpan{first, gap - 1}, {gap, gap}, {gap + 1, last}})
        if (span.First <= span.Last)
            spans.push_back(span);
    return spans;
}

} // namespace

void VisitPieces(const ScintillaText &text, BytePosition start, BytePosition end, PieceOrder order,
                 const std::function<bool(const TextPiece &)> &visit) {
    std::vector<LineSpan> spans =
        SpansAroundGap(text, text.LineOf(start).Value, text.LineOf(end).Value);
    if (order == PieceOrder::Backward)
        std::reverse(spans.begin(), spans.end());
    for (const LineSpan span : spans) {
        const BytePosition pieceStart = text.LineStart({span.First});
        if (!visit({pieceStart, text.Bytes(pieceStart, text.LineEnd({span.Last}))}))
            return;
    }
}

} // namespace Quillbox
