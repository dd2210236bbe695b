// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaOffsets.h"

#include "platform/qt/ScintillaEditor.h"

#include <algorithm>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

int CharactersIn(std::string_view utf8) {
    return static_cast<int>(std::ranges::count_if(
        utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

} // namespace

ScintillaOffsets::ScintillaOffsets(ScintillaEditor &editor)
    : QObject(&editor)
    , Text_(editor) {
    connect(&editor, &Sci::SCN_MODIFIED, this,
            [this](int position, int type, const char *bytes, int length) {
                if (bytes != nullptr)
                    Follow(position, type, {bytes, static_cast<std::size_t>(length)});
                else
                    Forget();
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
    if (Count_ < 0)
        Count_ = KnownOffset_ + Distance(Text_.Length());
    return Count_;
}

/// An edit before the place that is known moves it.
void ScintillaOffsets::Follow(BytePosition position, int type, std::string_view bytes) {
    const auto length = static_cast<BytePosition>(bytes.size());
    const bool inserted = (type & Sci::SC_MOD_INSERTTEXT) != 0;
    if (Count_ >= 0)
        Count_ += inserted ? CharactersIn(bytes) : -CharactersIn(bytes);
    if (position >= KnownPosition_)
        return;
    if (inserted) {
        KnownPosition_ += length;
        KnownOffset_ += CharactersIn(bytes);
        return;
    }
    const BytePosition gone = std::min(length, KnownPosition_ - position);
    KnownPosition_ -= gone;
    KnownOffset_ -= CharactersIn(bytes.substr(0, static_cast<std::size_t>(gone)));
}

void ScintillaOffsets::Forget() {
    KnownPosition_ = 0;
    KnownOffset_ = 0;
    Count_ = -1;
}

int ScintillaOffsets::Distance(BytePosition position) const {
    return position >= KnownPosition_ ? Text_.CharactersIn(KnownPosition_, position)
                                      : -Text_.CharactersIn(position, KnownPosition_);
}

} // namespace Quillbox
