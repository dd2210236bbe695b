// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaOffsets.h"

#include "editor/ui/ScintillaEditor.h"

#include <utility>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

} // namespace

ScintillaOffsets::ScintillaOffsets(ScintillaEditor &editor)
    : QObject(&editor)
    , Text_(editor) {
    connect(&editor, &Sci::SCN_MODIFIED, this,
            [this](int position, int type, const char *, int length) {
                Follow(position, type, length);
            });
    connect(&editor, &ScintillaEditor::OtherTextShown, this, &ScintillaOffsets::Forget);
}

int ScintillaOffsets::OffsetOf(BytePosition position) {
    KnownOffset_ += Distance(position);
    KnownPosition_ = position;
    return KnownOffset_;
}

BytePosition ScintillaOffsets::PositionOf(int offset) {
    if (offset <= 0)
        return 0;
    if (offset >= Count())
        return Text_.Length();
    KnownPosition_ = Text_.Send(Sci::SCI_POSITIONRELATIVE, KnownPosition_, offset - KnownOffset_);
    KnownOffset_ = offset;
    return KnownPosition_;
}

int ScintillaOffsets::Count() {
    CountInserted();
    if (Count_ < 0)
        Count_ = KnownOffset_ + Distance(Text_.Length());
    return Count_;
}

/// Changes are reported before they happen, so what an insertion brings is counted later. The place
/// that is known goes before the change and stays right. A bulk change is over already.
void ScintillaOffsets::Follow(BytePosition position, int type, BytePosition length) {
    if ((type & (Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT)) != 0)
        return Forget();
    if ((type & (InsertionReport | DeletionReport)) == 0)
        return;
    CountInserted();
    if (position < KnownPosition_)
        OffsetOf(position);
    if (Count_ < 0)
        return;
    if ((type & DeletionReport) != 0)
        Count_ -= Text_.CharactersIn(position, position + length);
    else
        Inserted_ = {position, position + length};
}

void ScintillaOffsets::CountInserted() {
    const auto [start, end] = std::exchange(Inserted_, {});
    if (Count_ >= 0)
        Count_ += Text_.CharactersIn(start, end);
}

void ScintillaOffsets::Forget() {
    KnownPosition_ = 0;
    KnownOffset_ = 0;
    Count_ = -1;
    Inserted_ = {};
}

int ScintillaOffsets::Distance(BytePosition position) const {
    return position >= KnownPosition_ ? Text_.CharactersIn(KnownPosition_, position)
                                      : -Text_.CharactersIn(position, KnownPosition_);
}

} // namespace Quillbox
