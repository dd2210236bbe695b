// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/LineCommands.h"

#include "state/LanguageDefinition.h"
#include "surfaces/EditorControl.h"

namespace Quillbox {
namespace {

/// Length of the comment marker: as many characters are looked at and removed.
constexpr int MarkerLength = 2;

const QString IndentUnit = QStringLiteral("\t");

template <typename Command>
void ForSelectedLines(EditorControl &editor, Command command) {
    TextRange selection = editor.GetSel();
    if (selection.End.Column.Value == 0)
        --selection.End.Line.Value;
    editor.AsOneUndoStep([&] {
        for (int line = selection.Start.Line.Value; line <= selection.End.Line.Value; ++line)
            command(TextPosition{{line}, {0}});
    });
}

void DeleteNextCharacters(EditorControl &editor, TextPosition position, int count) {
    editor.SetCaretPos(position);
    for (; count > 0; --count)
        editor.ExecuteCommand(EditorCommand::DeleteNextCharacter);
}

} // namespace

void ToggleComments(EditorControl &editor, const LanguageDefinition &language) {
    ForSelectedLines(editor, [&](TextPosition lineStart) {
        const QString &marker = language.SingleLineComment;
        if (editor.LineText(lineStart.Line).left(MarkerLength) == marker)
            return DeleteNextCharacters(editor, lineStart, MarkerLength);
        editor.SetCaretPos(lineStart);
        editor.InsertText(marker, lineStart);
    });
}

void IndentLines(EditorControl &editor) {
    ForSelectedLines(editor,
                     [&](TextPosition lineStart) { editor.InsertText(IndentUnit, lineStart); });
}

void OutdentLines(EditorControl &editor) {
    ForSelectedLines(editor, [&](TextPosition lineStart) {
        if (editor.LineText(lineStart.Line).startsWith(IndentUnit))
            DeleteNextCharacters(editor, lineStart, 1);
    });
}

} // namespace Quillbox
