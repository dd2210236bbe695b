// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

#include <QObject>

class QMouseEvent;

namespace Quillbox {

class ScintillaEditor;

/// What the mouse does with keys held: Ctrl adds a caret and, dragged, its selection; Alt selects a
/// column. The editing component itself knows columns only, and those with Ctrl.
class ScintillaMouse final : public QObject {
  public:
    explicit ScintillaMouse(ScintillaEditor &editor);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool Take(const QMouseEvent &mouse);
    void AddCaret(BytePosition position);
    BytePosition PositionAt(const QMouseEvent &mouse) const;
    void SelectColumn(const QMouseEvent &mouse);

    ScintillaEditor &Editor_;
    ScintillaText Text_;
    bool Adding_ = false;          ///< a caret with the button held
    bool SelectingColumn_ = false; ///< an event on its way to the component
};

} // namespace Quillbox
