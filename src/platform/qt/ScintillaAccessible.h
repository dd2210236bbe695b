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
    void TellModified(int position, int type, const char *bytes, int length);
    void TellCaret();

    ScintillaEditor &Editor_;
    ScintillaText Text_;
    int Caret_ = 0; ///< as it was told last, in characters
    bool HadSelection_ = false;
};

} // namespace Quillbox
