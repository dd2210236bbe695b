// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/ScintillaAccessible.h"

#include "editor/ui/AccessibleEditor.h"
#include "editor/ui/ScintillaEditor.h"

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

/// The component makes an interface of its own, which counts all characters before the caret at
/// each paint, with or without a tool that wants to know.
void ReplaceComponentsInterface(ScintillaEditor &editor) {
    QAccessible::installFactory(MakeAccessibleEditor);
    QAccessibleInterface *made = QAccessible::queryAccessibleInterface(&editor);
    if (dynamic_cast<AccessibleEditor *>(made) == nullptr)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

} // namespace

ScintillaAccessibility::ScintillaAccessibility(ScintillaEditor &editor, ScintillaOffsets &offsets,
                                               AssistiveTools tools)
    : QObject(&editor)
    , Editor_(editor)
    , Text_(editor)
    , Offsets_(offsets)
    , Tools_(std::move(tools)) {
    ReplaceComponentsInterface(editor);
    connect(&editor, &Sci::SCN_MODIFIED, this,
            [this](int position, int type, const char *, int length) {
                if (Tools_.AreThere())
                    Modified(position, type, length);
            });
    connect(&editor, &Sci::SCN_UPDATEUI, this, [this] {
        if (!Tools_.AreThere())
            return;
        TellInserted();
        TellCaret();
    });
}

/// Mostly about to happen: what goes can be read now, what comes only when it is there. A bulk
/// change is over already.
void ScintillaAccessibility::Modified(BytePosition position, int type, int length) {
    TellInserted();
    const bool isOver = (type & (Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT)) != 0;
    if (isOver || length > MostToldBytes) {
        QAccessibleEvent event(&Editor_, QAccessible::VisibleDataChanged);
        Tools_.Tell(&event);
    } else if ((type & Sci::SC_MOD_BEFOREINSERT) != 0) {
        Inserted_ = {position, position + length};
    } else if ((type & Sci::SC_MOD_BEFOREDELETE) != 0) {
        QAccessibleTextRemoveEvent event(&Editor_, Offsets_.OffsetOf(position),
                                         TextOf({position, position + length}));
        Tools_.Tell(&event);
    }
}

void ScintillaAccessibility::TellInserted() {
    const Stretch inserted = std::exchange(Inserted_, {});
    if (inserted.Start == inserted.End)
        return;
    QAccessibleTextInsertEvent event(&Editor_, Offsets_.OffsetOf(inserted.Start), TextOf(inserted));
    Tools_.Tell(&event);
}

QString ScintillaAccessibility::TextOf(Stretch stretch) const {
    return FromUtf8(Text_.Bytes(stretch.Start, stretch.End));
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
