// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
class QsciScintillaBase;

namespace Quillbox {

/// Puts the dialog at the upper right corner of the editor, where least of the text is.
void PlaceOverCorner(QWidget &dialog, const QsciScintillaBase &editor);

/// Moves the dialog when it lies over the selection and the screen has room elsewhere.
void UncoverSelection(QWidget &dialog, const QsciScintillaBase &editor);

} // namespace Quillbox
