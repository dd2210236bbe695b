// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaOffsets.h"

#include <QAccessible>

#include <functional>

namespace Quillbox {

class ScintillaEditor;

/// The way to assistive tools.
struct AssistiveTools {
    std::function<bool()> AreThere = &QAccessible::isActive;
    std::function<void(QAccessibleEvent *)> Tell = &QAccessible::updateAccessibility;
};

/// Tells assistive tools of changes of an editor's text, caret and selection. Nothing is told and
/// nothing counted unless there are such tools.
class ScintillaAccessibility final : public QObject {
  public:
    /// `offsets` is the editor's.
    ScintillaAccessibility(ScintillaEditor &editor, ScintillaOffsets &offsets,
                           AssistiveTools tools = {});

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
    ScintillaOffsets &Offsets_;
    AssistiveTools Tools_;
    Stretch Inserted_; ///< not told yet
    int Caret_ = 0;    ///< as it was told last, in characters
    bool HadSelection_ = false;
};

} // namespace Quillbox
