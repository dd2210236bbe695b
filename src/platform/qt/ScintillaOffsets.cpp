// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaOffsets.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// The editor has no characters that take two units of UTF-16.
constexpr int IndexKind = Sci::SC_LINECHARACTERINDEX_UTF16;

} // namespace

int ScintillaOffsets::OffsetOf(BytePosition position) const {
    PrepareIndex();
    const LineIndex line = Text_.LineOf(position);
    const std::intptr_t start = Text_.Send(Sci::SCI_INDEXPOSITIONFROMLINE, line.Value, IndexKind);
    return static_cast<int>(start) + Text_.CharactersIn(Text_.LineStart(line), position);
}

BytePosition ScintillaOffsets::PositionOf(int offset) const {
    if (offset <= 0)
        return 0;
    PrepareIndex();
    const auto line =
        static_cast<int>(Text_.Send(Sci::SCI_LINEFROMINDEXPOSITION, offset, IndexKind));
    const std::intptr_t start = Text_.Send(Sci::SCI_INDEXPOSITIONFROMLINE, line, IndexKind);
    if (offset <= start)
        return Text_.LineStart({line});
    const BytePosition position =
        Text_.Send(Sci::SCI_POSITIONRELATIVE, Text_.LineStart({line}), offset - start);
    return position > 0 ? position : Text_.Length(); // 0 stands for beyond the end
}

void ScintillaOffsets::PrepareIndex() const {
    if ((Text_.Send(Sci::SCI_GETLINECHARACTERINDEX) & IndexKind) == 0)
        Text_.Send(Sci::SCI_ALLOCATELINECHARACTERINDEX, IndexKind);
}

} // namespace Quillbox
