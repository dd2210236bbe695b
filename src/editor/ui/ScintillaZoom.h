// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"
#include "widgets/WheelNotches.h"

#include <QObject>

class QKeyEvent;

namespace Quillbox {

class ScintillaEditor;

/// Shows an editor's text larger or smaller: Ctrl with the mouse wheel, with "+", "-" and "0".
class ScintillaZoom final : public QObject {
  public:
    explicit ScintillaZoom(ScintillaEditor &editor);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool TakeKey(const QKeyEvent &key);
    bool TakeWheel(const QWheelEvent &wheel);
    void ZoomBy(int points);

    ScintillaText Text_;
    WheelNotches Notches_;
};

} // namespace Quillbox
