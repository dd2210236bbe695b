// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QWidget>

namespace Quillbox {

/// Counts the paints of a widget, not those of its children.
class PaintCounter final : public QObject {
  public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    int Count = 0;

  private:
    bool eventFilter(QObject *, QEvent *event) override {
        Count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace Quillbox
