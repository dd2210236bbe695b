// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class EditorControl;
struct LanguageDefinition;

/// The commands below work on the lines that the selection touches, as one undo step. A selection
/// that ends at the very start of a line leaves that line out; so a mere caret at the start of a
/// line selects none.

/// Removes the language's comment marker from the first column of each line that has it there, and
/// puts it in front of the others. An indented comment counts as a line without a marker. The caret
/// ends in the last line, at its start or behind the marker that it got.
void ToggleComments(EditorControl &editor, const LanguageDefinition &language);

/// One tab character in front of each line, whatever the tab size.
void IndentLines(EditorControl &editor);

/// Removes the tab character that a line begins with; lines that begin otherwise stay, those that
/// begin with blanks, too.
void OutdentLines(EditorControl &editor);

} // namespace Quillbox
