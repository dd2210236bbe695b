// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/ScintillaAccessible.h"

#include "platform/qt/AccessibleEditor.h"
#include "platform/qt/ScintillaEditor.h"

#include <utility>

namespace Quillbox {

namespace {

using Sci = QsciScintillaBase;

/// A longer piece of text is told as a change of the whole and not letter by letter.
constexpr int MostToldBytes = 10'000;

QAccessibleInterface *MakeAccessibleEditor(const QString &, QObject *object) {
    auto *editor = qobject_cast<ScintillaEditor *>(object);
    auto *offsets = editor == nullptr ? nullptr : editor->findChild<ScintillaOffsets *>();
    return offsets == nullptr ? nullptr : new AccessibleEditor(*editor, *offsets);
}

} // namespace

ScintillaAccessibility::ScintillaAccessibility(ScintillaEditor &editor, ScintillaOffsets &offsets,
                                               AssistiveTools tools)
    : QObject(&editor)
    , Editor_(editor)
    , Text_(editor)
    , Offsets_(offsets)
    , Tools_(std::move(tools)) {
    QAccessible::installFactory(MakeAccessibleEditor);
    connect(&editor, &Sci::SCN_MODIFIED, this,
            [this](int position, int type, const char *bytes, int length) {
                if (Tools_.AreThere())
                    TellModified(position, type, bytes, length);
            });
    connect(&editor, &Sci::SCN_UPDATEUI, this, [this] {
        if (Tools_.AreThere())
            TellCaret();
    });
}

void ScintillaAccessibility::TellModified(int position, int type, const char *bytes, int length) {
    const bool inserted = (type & Sci::SC_MOD_INSERTTEXT) != 0;
    if (!inserted && (type & Sci::SC_MOD_DELETETEXT) == 0)
        return;
    if (length > MostToldBytes || bytes == nullptr) {
        QAccessibleEvent event(&Editor_, QAccessible::VisibleDataChanged);
        return Tools_.Tell(&event);
    }
    const int offset = Offsets_.OffsetOf(position);
    const QString text = QString::fromUtf8(bytes, length);
    if (inserted) {
        QAccessibleTextInsertEvent event(&Editor_, offset, text);
        Tools_.Tell(&event);
    } else {
        QAccessibleTextRemoveEvent event(&Editor_, offset, text);
        Tools_.Tell(&event);
    }
}

void ScintillaAccessibility::TellCaret() {
    const int caret = Offsets_.OffsetOf(Text_.Caret());
    const bool hasSelection = Text_.SelectionStart() != Text_.SelectionEnd();
    if (hasSelection || HadSelection_) {
        QAccessibleTextSelectionEvent event(&Editor_, Offsets_.OffsetOf(Text_.SelectionStart()),
                                            Offsets_.OffsetOf(Text_.SelectionEnd()));
        event.setCursorPosition(caret);
        Tools_.Tell(&event);
    }
    HadSelection_ = hasSelection;
    if (std::exchange(Caret_, caret) == caret)
        return;
    QAccessibleTextCursorEvent event(&Editor_, caret);
    Tools_.Tell(&event);
}

} // namespace Quillbox
