// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/ScintillaText.h"

#include <QObject>

namespace Quillbox {

class ScintillaEditor;

/// Lets assistive tools read an editor's text, caret and selection, and tells them of changes.
/// Nothing is told and nothing counted unless such a tool is there.
class ScintillaAccessibility final : public QObject {
  public:
    explicit ScintillaAccessibility(ScintillaEditor &editor);

  private:
    struct Stretch {
        BytePosition Start = 0;
        BytePosition End = 0;
    };
    void Modified(BytePosition position, int type, int length);
    void TellInserted();
    QString TextOf(Stretch stretch) const;
    void TellCaret();

    ScintillaEditor &Editor_;
    ScintillaText Text_;
    Stretch Inserted_; ///< not told yet
    int Caret_ = 0; ///< as it was told last, in characters
    bool HadSelection_ = false;
};

} // namespace Quillbox
