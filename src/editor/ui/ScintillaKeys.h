// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/ui/ScintillaText.h"

class QKeyEvent;

namespace Quillbox {

/// Takes its commands on Ctrl and a letter from the editing component: the menus have those keys,
/// and what no menu shows must not change a text by surprise.
void ClearLetterCommands(const ScintillaText &text);

/// The control character of a key pressed with Ctrl alone (1 for A ... 26 for Z), 0 for none.
int ControlCharacterOf(const QKeyEvent &event);

/// 13 for Enter, 8 for Backspace, 46 for Delete, the ASCII code of letters and digits, otherwise 0.
int WindowsKeyCodeOf(const QKeyEvent &event);

} // namespace Quillbox
