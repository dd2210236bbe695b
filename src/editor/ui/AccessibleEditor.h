// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaOffsets.h"

#include <QAccessibleWidget>

namespace Quillbox {

class ScintillaEditor;

/// What assistive tools see of an editor. Texts that they ask for by places are read from the lines
/// around, never from the whole text.
class AccessibleEditor final : public QAccessibleWidget,
                               public QAccessibleTextInterface,
                               public QAccessibleEditableTextInterface {
  public:
    /// `offsets` is the editor's.
    AccessibleEditor(ScintillaEditor &editor, ScintillaOffsets &offsets);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    void selection(int selection, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int selection) override;
    void setSelection(int selection, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int offset) override;
    QString text(int start, int end) const override;
    using QAccessibleWidget::text;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                             int *end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                            int *end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                         int *end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

  private:
    struct Around;
    Around LinesAround(int offset) const;
    void Select(int anchor, int caret);

    ScintillaEditor &Editor_;
    ScintillaText Text_;
    ScintillaOffsets &Offsets_;
};

} // namespace Quillbox
