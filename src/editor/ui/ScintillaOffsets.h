// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

#include <QObject>

namespace Quillbox {

class ScintillaEditor;

/// The way from byte positions to places counted in characters from the start of the text, as
/// assistive tools count, line ends included, and back. Remembers the last place and counts from
/// there, so that a long text is counted once and not at each key. Costs nothing until it is asked.
class ScintillaOffsets final : public QObject {
    Q_OBJECT
  public:
    explicit ScintillaOffsets(ScintillaEditor &editor);

    int OffsetOf(BytePosition position);
    /// An offset outside the text means its nearest end.
    BytePosition PositionOf(int offset);
    /// Characters in the whole text.
    int Count();

  private:
    void Follow(BytePosition position, int type, BytePosition length);
    void CountInserted();
    void Forget();
    int Distance(BytePosition position) const;

    ScintillaText Text_;
    BytePosition KnownPosition_ = 0;
    int KnownOffset_ = 0;
    int Count_ = -1; ///< -1 while it is not known
    struct {
        BytePosition Start = 0;
        BytePosition End = 0;
    } Inserted_; ///< in the text, but not yet in Count_
};

} // namespace Quillbox
