// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Quillbox {

class EditorControl;

/// Items of the Edit menu. Each does nothing when the editor says that it cannot.
void Undo(EditorControl &editor);
void Redo(EditorControl &editor);
void Cut(EditorControl &editor);
void Copy(EditorControl &editor);
void Paste(EditorControl &editor);

/// Deletes the selection, if there is one.
void Delete(EditorControl &editor);

} // namespace Quillbox
