// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaAccessible.h"

#include "platform/qt/AccessibleEditor.h"
#include "platform/qt/ScintillaEditor.h"

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// A longer piece of text is told as a change of the whole and not letter by letter.
constexpr int MostToldBytes = 10'000;

QAccessibleInterface *MakeAccessibleEditor(const QString &, QObject *object) {
    auto *editor = qobject_cast<ScintillaEditor *>(object);
    return editor == nullptr ? nullptr : new AccessibleEditor(*editor);
}

} // namespace

ScintillaAccessibility::ScintillaAccessibility(ScintillaEditor &editor)
    : QObject(&editor)
    , Editor_(editor)
    , Text_(editor) {
    QAccessible::installFactory(MakeAccessibleEditor);
    connect(&editor, &Sci::SCN_MODIFIED, this,
            [this](int position, int type, const char *bytes, int length) {
                if (QAccessible::isActive())
                    TellModified(position, type, bytes, length);
            });
    connect(&editor, &Sci::SCN_UPDATEUI, this, [this] {
        if (QAccessible::isActive())
            TellCaret();
    });
}

void ScintillaAccessibility::TellModified(int position, int type, const char *bytes, int length) {
    const bool inserted = (type & Sci::SC_MOD_INSERTTEXT) != 0;
    if (!inserted && (type & Sci::SC_MOD_DELETETEXT) == 0)
        return;
    if (length > MostToldBytes || bytes == nullptr) {
        QAccessibleEvent event(&Editor_, QAccessible::VisibleDataChanged);
        return QAccessible::updateAccessibility(&event);
    }
    const int offset = ScintillaOffsets(Text_).OffsetOf(position);
    const QString text = QString::fromUtf8(bytes, length);
    if (inserted) {
        QAccessibleTextInsertEvent event(&Editor_, offset, text);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleTextRemoveEvent event(&Editor_, offset, text);
        QAccessible::updateAccessibility(&event);
    }
}

void ScintillaAccessibility::TellCaret() {
    const ScintillaOffsets offsets(Text_);
    const int caret = offsets.OffsetOf(Text_.Caret());
    const bool hasSelection = Text_.SelectionStart() != Text_.SelectionEnd();
    if (hasSelection || HadSelection_) {
        QAccessibleTextSelectionEvent event(&Editor_, offsets.OffsetOf(Text_.SelectionStart()),
                                            offsets.OffsetOf(Text_.SelectionEnd()));
        event.setCursorPosition(caret);
        QAccessible::updateAccessibility(&event);
    }
    HadSelection_ = hasSelection;
    if (std::exchange(Caret_, caret) == caret)
        return;
    QAccessibleTextCursorEvent event(&Editor_, caret);
    QAccessible::updateAccessibility(&event);
}

} // namespace Quillbox
